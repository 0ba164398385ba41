void f() {
    ASK_QUESTION_WITH_ARG("A %1", Msg::Yes | Msg::No, Msg::No, name);
    ASK_QUESTION_WITH_ARG("B %1", name, Msg::Yes | Msg::No, Msg::No);
    ASK_QUESTION_WITH_ARGS("C %1 %2", g(1, 2), h, Yes | No, Yes);
    ASK_QUESTION_WITH_ARGS("D %1", buttons, preferred, g(1));
}
