template <typename T, int N = (3 > 2)> void f(T t) { REPORT_ERROR("1"); }
template <class T> void C<T>::g() { REPORT_ERROR("2"); }
template <> int C<std::map<int, D<E>>>::h() { REPORT_ERROR("3"); }
template <typename T> struct S { template <typename U> void i(U u) { REPORT_ERROR("4"); } };
std::vector<std::pair<int, int>> j() { REPORT_ERROR("5"); }
template <int N = 1 << 3> class K { void k() { REPORT_ERROR("6"); } };
template <template <class> class T, typename... U> T<U...> l(U &&...u) { REPORT_ERROR("7"); }
template <> void m<int>(int) { REPORT_ERROR("8"); }
template class C<int>;
extern template class C<long>;
void n() { REPORT_ERROR("9"); }
