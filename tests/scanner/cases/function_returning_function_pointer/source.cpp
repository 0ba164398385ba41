void (*f(int a, void (*b)(int)))(int) { REPORT_ERROR("1"); }
int (*g)(int) = nullptr;
void h() { REPORT_ERROR("2"); }
