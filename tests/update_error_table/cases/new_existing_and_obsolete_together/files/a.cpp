void f() { REPORT_ERROR("B"); REPORT_MESSAGE("D"); }
