void f() {
    REPORT_ERROR("one "
                 "two" /* and */ " three" // and
                 L" four");
    REPORT_ERROR_WITH_ARG("a" "b", "c");
    REPORT_ERROR("x"u8"y" R"(z)");
}
