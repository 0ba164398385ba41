inline namespace v1 { void f() { REPORT_ERROR("1"); } }
namespace [[deprecated]] A { void f() { REPORT_ERROR("2"); } }
namespace B VISIBLE(default) { void f() { REPORT_ERROR("3"); } }
namespace C::inline D { void f() { REPORT_ERROR("4"); } }
namespace E = C::D;
void f() { REPORT_ERROR("5"); }
