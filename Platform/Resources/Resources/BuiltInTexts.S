/* The sealed archive of texts as a part of the library. QX_TEXT_ARCHIVE is its path. */

  .section .rodata
  .balign 16
  .globl QxBuiltInTexts
  .hidden QxBuiltInTexts
QxBuiltInTexts:
  .incbin QX_TEXT_ARCHIVE
  .globl QxBuiltInTextsEnd
  .hidden QxBuiltInTextsEnd
QxBuiltInTextsEnd:

  .section .note.GNU-stack,"",%progbits
