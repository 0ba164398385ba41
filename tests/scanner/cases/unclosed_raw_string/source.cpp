void f() {
    REPORT_ERROR("A");
    g = R"x(open)y";
    REPORT_ERROR("B");
}
