namespace N {
static const char *tags[] = { REPORT_ERROR_NOOP("1"), REPORT_MESSAGE_NOOP("2") };
Foo foo{1, {2, 3}};
Foo bar = { g(1), [] { return 2; } };
Foo baz(REPORT_ERROR("3"));
bool less = a < b;
void f() { REPORT_ERROR("4"); }
class C { int m = REPORT_ERROR("5"); int n{1}; void g() { REPORT_ERROR("6"); } };
}
