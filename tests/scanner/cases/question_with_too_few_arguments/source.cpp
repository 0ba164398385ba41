void f() {
    ASK_QUESTION("A");
    ASK_QUESTION("B", Yes | No);
    ASK_QUESTION_WITH_ARG("C", Yes);
    ASK_QUESTION("D", Yes, Yes);
}
