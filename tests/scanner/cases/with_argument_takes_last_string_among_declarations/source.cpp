const char *tag = "Ear" "lier";
int g(const char *tag = "Default");
void f() { REPORT_ERROR_WITH_ARG(tag, 1); }
