template <typename T> concept A = requires(T t) { t.f(); };
template <typename T> requires A<T> void f(T) { REPORT_ERROR("1"); }
template <typename T> requires (sizeof(T) > 4) void g(T) { REPORT_ERROR("2"); }
template <typename T> void C<T>::h() requires A<T> { REPORT_ERROR("3"); }
template <typename T> requires requires(T t) { t.x; } void i(T) { REPORT_ERROR("4"); }
void j(A auto a) { REPORT_ERROR("5"); }
