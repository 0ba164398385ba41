struct A *f(struct B b) { REPORT_ERROR("1"); }
class C g() { REPORT_ERROR("2"); }
template <class T> void h(T t) { REPORT_ERROR("3"); }
enum D i() { REPORT_ERROR("4"); }
struct E e = { 1, 2 };
friend class F;
void j() { REPORT_ERROR("5"); }
