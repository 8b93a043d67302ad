#include "Host/Json/FailureJson.hpp"

namespace Host {

void WriteFailure(JsonWriter& writer, const FailureFacts& failure) {
  writer.BeginObject();
  writer.WriteKey("stage");
  writer.WriteName(failure.stage);
  writer.WriteKey("name");
  writer.WriteText(failure.name);
  if (failure.index != 0) {
    writer.WriteKey("index");
    writer.WriteInteger(failure.index);
  }
  writer.WriteKey("message");
  writer.WriteText(failure.message);
  if (failure.place) {
    writer.WriteKey("begin");
    writer.WriteInteger(failure.place->begin);
    writer.WriteKey("end");
    writer.WriteInteger(failure.place->end);
  }
  if (failure.span) {
    writer.WriteKey("span");
    writer.BeginArray();
    writer.WriteInteger(failure.span->begin);
    writer.WriteInteger(failure.span->end);
    writer.EndArray();
  }
  writer.EndObject();
}

}  // namespace Host
