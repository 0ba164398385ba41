void f() {
    REPORT_ERROR_WITH_ARG("1", g(h(1), "(", ')'));
    REPORT_ERROR_WITH_ARGS("2", (a, (b)), QStringList() << c << d);
    REPORT_MESSAGE_WITH_ARG("3", [&] { REPORT_ERROR("4"); return 5; }());
    REPORT_ERROR(REPORT_ERROR("5"));
    REPORT_ERROR("6");
}
