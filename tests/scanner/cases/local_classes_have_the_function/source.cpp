namespace N {
void f()
{
    struct L { void g() { REPORT_ERROR("1"); } };
    REPORT_ERROR("2");
}
}
