void f() { REPORT_ERROR("a < \"b\" & c"); }
