void f() {
    a = "REPORT_ERROR(\"A\")"; b = "}"; c = "{{"; d = "// not a comment"; e = "/*";
    REPORT_ERROR("B");
    g = "\\"; REPORT_ERROR("C");
    h = "it's"; REPORT_ERROR("D");
    i = "#if";
}
const char *j = "{ } (";
void k() { REPORT_ERROR("E"); }
