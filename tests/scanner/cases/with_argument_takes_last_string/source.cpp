void f()
{
    const char *tag = "Earlier";
    REPORT_ERROR_WITH_ARG(tag, 1);
    log("Later");
    REPORT_MESSAGE_WITH_ARGS(tag, 1, 2);
}
