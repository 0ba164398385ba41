using namespace std;
using namespace A::B;
using A::g;
using T = A::B;
void f() { REPORT_ERROR("1"); }
namespace N {
using namespace M;
void C::f() { using namespace O; REPORT_ERROR("2"); }
}
