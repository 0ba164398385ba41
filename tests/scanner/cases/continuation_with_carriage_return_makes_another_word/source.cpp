void f() {
  MY_\
REPORT_ERROR("A");
  REPORT_ERROR("C");
}
