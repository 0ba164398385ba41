namespace N {
static inline const Foo &f(int a) { REPORT_ERROR("A"); }
}
void g() { REPORT_ERROR("B"); }
