namespace N {
bool C::operator==(const C &o) const { REPORT_ERROR("1"); }
C &C::operator=(const C &o) { REPORT_ERROR("2"); }
int C::operator()(int a) { REPORT_ERROR("3"); }
int &C::operator[](int a) { REPORT_ERROR("4"); }
C::operator bool() const { REPORT_ERROR("5"); }
bool operator<(const C &a, const C &b) { REPORT_ERROR("6"); }
std::ostream &operator<<(std::ostream &o, const C &c) { REPORT_ERROR("7"); }
C *C::operator->() { REPORT_ERROR("8"); }
void *C::operator new[](std::size_t size) { REPORT_ERROR("9"); }
Q operator"" _km(long double a) { REPORT_ERROR("10"); }
C::operator const char *() { REPORT_ERROR("11"); }
C operator , (C a, C b) { REPORT_ERROR("12"); }
void f() { REPORT_ERROR("13"); }
}
