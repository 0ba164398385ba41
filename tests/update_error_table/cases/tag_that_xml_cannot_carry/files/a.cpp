void f()
{
    REPORT_ERROR("fine");
    REPORT_ERROR("\x01");
}
