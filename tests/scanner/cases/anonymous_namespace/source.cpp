namespace {
void f() { REPORT_ERROR("1"); }
}
namespace N {
namespace {
void g() { REPORT_ERROR("2"); }
}
void h() { REPORT_ERROR("3"); }
}
