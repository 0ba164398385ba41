void f() { REPORT_ERROR("A"); REPORT_ERROR("A"); }
void g() { REPORT_ERROR("A"); }
