#else
#endif
void f() { REPORT_ERROR("1"); }
#endif
#if A
void g() { REPORT_ERROR("2"); }
