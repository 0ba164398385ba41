namespace N {
void C::f() { REPORT_ERROR("A"); }
int *C::g(int a, const char *b) const { REPORT_ERROR("B"); return 0; }
}
