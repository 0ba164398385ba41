extern "C" {
void f() { REPORT_ERROR("1"); }
}
extern "C" int g(int a) { REPORT_ERROR("2"); }
extern "C" { namespace N { void h() { REPORT_ERROR("3"); } } }
namespace M {
extern "C++" { void i() { REPORT_ERROR("4"); } }
void j() { REPORT_ERROR("5"); }
}
extern int k;
void l() { REPORT_ERROR("6"); }
