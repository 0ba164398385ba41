namespace checked {
void f(int x) checked(x) { REPORT_ERROR("A"); }
}
