void f()
{
    REPORT_ERROR(tag);
    REPORT_ERROR(tr("A"));
    REPORT_ERROR(("B"));
    REPORT_ERROR('C');
    REPORT_ERROR(42);
    REPORT_ERROR();
    REPORT_MESSAGE(QStringLiteral("D"));
    ASK_QUESTION(question, Yes | No, No);
    ASK_QUESTION_WITH_ARG(question, Yes | No, No, 1);
}
