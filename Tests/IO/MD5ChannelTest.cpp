#include "IO/MD5Channel.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <openssl/evp.h>
#include <string>
#include <string_view>

namespace {

using IO::MD5Channel;

MD5Channel::Digest ReferenceDigest(std::string_view bytes) {
  MD5Channel::Digest digest{};
  EXPECT_EQ(EVP_Digest(bytes.data(), bytes.size(), digest.data(), nullptr, EVP_md5(), nullptr), 1);
  return digest;
}

TW::UniString DigestText(std::string_view bytes) {
  MD5Channel channel;
  EXPECT_EQ(channel.WriteBytes(bytes.data(), bytes.size()), TW::NoErr);
  return channel.GetDigestText();
}

std::string MakeBytes(std::size_t length) {
  std::string bytes;
  for (std::size_t i = 0; i < length; ++i) bytes.push_back(static_cast<char>(i * 151 + i / 7));
  return bytes;
}

TEST(MD5Channel, GivesTheDigestsOfTheStandard) {
  struct Row {
    const char* text;
    const char16_t* digest;
  };
  const Row rows[] = {
      {"", u"d41d8cd98f00b204e9800998ecf8427e"},
      {"a", u"0cc175b9c0f1b6a831c399e269772661"},
      {"abc", u"900150983cd24fb0d6963f7d28e17f72"},
      {"message digest", u"f96b697d7cb7938d525a2f31aaf161d0"},
      {"abcdefghijklmnopqrstuvwxyz", u"c3fcd3d76192e4007dfb496cca67e13b"},
      {"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789", u"d174ab98d277d9f5a5611c2c9f419d9f"},
      {"12345678901234567890123456789012345678901234567890123456789012345678901234567890",
       u"57edf4a22be3c955ac49da2e2107b67a"},
  };
  for (const Row& row : rows) EXPECT_EQ(DigestText(row.text), TW::UniString(row.digest)) << row.text;
}

TEST(MD5Channel, AgreesWithAnotherImplementationAtEveryLengthInOneGo) {
  for (std::size_t length = 0; length <= 200; ++length) {
    const std::string bytes = MakeBytes(length);
    MD5Channel channel;
    channel.WriteBytes(bytes.data(), bytes.size());
    EXPECT_EQ(channel.GetDigest(), ReferenceDigest(bytes)) << length;
  }
}

// Asks for the digest after every piece, so that asking must not disturb what follows.
TEST(MD5Channel, AgreesWithAnotherImplementationAfterEveryPiece) {
  const std::string bytes = MakeBytes(1000);
  for (std::size_t step = 1; step <= 140; ++step) {
    MD5Channel channel;
    for (std::size_t at = 0, size = step; at < bytes.size(); at += size, size = size * 5 % 139 + 1) {
      size = std::min(size, bytes.size() - at);
      channel.WriteBytes(bytes.data() + at, size);
      ASSERT_EQ(channel.GetDigest(), ReferenceDigest(std::string_view(bytes).substr(0, at + size)))
          << step << ' ' << at;
    }
  }
}

TEST(MD5Channel, CountsLengthsBeyond32BitsOfBits) {
  const std::string megabyte = MakeBytes(1 << 20);
  EVP_MD_CTX* reference = EVP_MD_CTX_new();
  EVP_DigestInit_ex(reference, EVP_md5(), nullptr);
  MD5Channel channel;
  for (int i = 0; i < 513; ++i) {
    channel.WriteBytes(megabyte.data(), megabyte.size());
    EVP_DigestUpdate(reference, megabyte.data(), megabyte.size());
  }
  MD5Channel::Digest digest{};
  EVP_DigestFinal_ex(reference, digest.data(), nullptr);
  EVP_MD_CTX_free(reference);
  EXPECT_EQ(channel.GetDigest(), digest);
}

TEST(MD5Channel, TakesNumbersAndTextsInTheirStoredForm) {
  MD5Channel channel;
  channel.WriteBool(true);
  channel.WriteUInt16(0x0203);
  channel.WriteInt32(-2);
  channel.WriteUInt64(0x0102030405060708);
  channel.WriteDouble(1);
  channel.WriteString(u"A\u20AC");
  EXPECT_EQ(channel.GetOutputStatus(), TW::NoErr);
  const char stored[] =
      "\x01\x03\x02\xFE\xFF\xFF\xFF\x08\x07\x06\x05\x04\x03\x02\x01\0\0\0\0\0\0\xF0\x3F\x02\0\0\0\x41\0\xAC\x20";
  EXPECT_EQ(channel.GetDigest(), ReferenceDigest(std::string_view(stored, sizeof(stored) - 1)));
}

}  // namespace
