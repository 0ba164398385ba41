namespace A {
namespace B {
void f() { REPORT_ERROR("1"); }
}
void g() { REPORT_ERROR("2"); }
}
namespace C::D::E {
void K::h() { REPORT_ERROR("3"); }
}
void i() { REPORT_ERROR("4"); }
