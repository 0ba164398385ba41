#define REPORT_ERROR(tag) report(tag, "A")
#define OPEN_BRACE {
#define LONG(x) { \
    REPORT_ERROR("B"); \
    "C
#include "D.h"
#include <it's>
#pragma message("REPORT_ERROR(\"E\")") /* comment
still REPORT_ERROR("F") */
  #  error don't "stop
#define RAW R"(
REPORT_ERROR("G"))"
void f() {
#define INNER }
    REPORT_ERROR("H");
#undef INNER
    a = b # c; REPORT_ERROR("I");
}
#
void g() { REPORT_ERROR("J"); }
