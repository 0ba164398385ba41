void f() {
    log("A");
#include "B.inc"
    REPORT_ERROR_WITH_ARG(tag, 1);
}
