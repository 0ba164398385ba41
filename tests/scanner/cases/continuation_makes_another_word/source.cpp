void f() {
  MY_\
REPORT_ERROR("A");
  REPORT_ERROR\
_X("B");
  REPORT_ERROR("C");
}
