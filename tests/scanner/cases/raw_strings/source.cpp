void f() {
    REPORT_ERROR(R"(a\n"b")");
    REPORT_ERROR(R"x(c)"d)x");
    REPORT_ERROR(LR"(e
f)");
    g = R"({ REPORT_ERROR("no") } /* )"; REPORT_ERROR("h");
    i = u8R"delimiter()" )delimite" )delimiter"; REPORT_ERROR("j");
    k = xR"(l"; REPORT_ERROR("m");
}
const char *n = R"({ " )";
void o() { REPORT_ERROR("p"); }
