void f()
{
    REPORT_ERROR("A");
}
