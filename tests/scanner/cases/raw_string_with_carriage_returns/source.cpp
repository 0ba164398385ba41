void f() { REPORT_ERROR(R"(one
two)"); }
