namespace N {
void f() { { { REPORT_ERROR("1"); } } REPORT_ERROR("2"); }
REPORT_ERROR("3");
}
REPORT_ERROR("4");
