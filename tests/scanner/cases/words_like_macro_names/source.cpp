void f()
{
    MY_REPORT_ERROR("A");
    REPORT_ERRORS("B");
    REPORT_ERROR_("C");
    report_error("D");
    REPORT_ERROR2("E");
    xREPORT_ERROR("F");
    TASK_QUESTION("G", Yes, No);
    REPORT_ERROR("H");
}
