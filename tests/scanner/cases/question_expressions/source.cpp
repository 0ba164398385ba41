void f() {
    ASK_QUESTION("A", answers(1, 2), defaultAnswer);
    ASK_QUESTION("B", (Yes | No), static_cast<int>(No));
    ASK_QUESTION("C", Yes | No, No, parent, g(1, 2));
    ASK_QUESTION("D", Yes
        | No,
        No
    );
    if (ASK_QUESTION("E", Yes | No, No) == Yes) { REPORT_ERROR("F"); }
}
