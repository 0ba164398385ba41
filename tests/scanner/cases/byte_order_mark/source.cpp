namespace n {
void f() { REPORT_ERROR("Tag ä"); }
}
