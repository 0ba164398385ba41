void f() {
    ASK_QUESTION("A", Yes | No, ASK_QUESTION("B", Ok, Ok) ? Yes : No);
    ASK_QUESTION_WITH_ARG("C", Yes, No, [] { ASK_QUESTION("D", Ok, Ok); REPORT_ERROR("E"); });
}
