void f() {
    for (int i = 0; i < 3; ++i) { if (a < b && c > d) { REPORT_ERROR("1"); } else REPORT_ERROR("2"); }
    switch (x) { case 1: { REPORT_ERROR("3"); break; } default: REPORT_ERROR("4"); }
    do { REPORT_ERROR("5"); } while (false);
    std::vector<int> v{1, 2}; return REPORT_ERROR("6");
}
void g() { REPORT_ERROR("7"); }
