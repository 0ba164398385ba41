void f() {
    ASK_QUESTION_WITH_ARG("A %1", name, Msg::NoAnswer, Msg::NoAnswer);
    ASK_QUESTION_WITH_ARG("B %1", name, Msg::Ok, Msg::Ok);
    ASK_QUESTION_WITH_ARG("C %1", name, Msg::Yes, Msg::Yes);
    ASK_QUESTION_WITH_ARG("D %1", name, Msg::No, Msg::No);
    ASK_QUESTION_WITH_ARG("E %1", name, Msg::Abort, Msg::Abort);
    ASK_QUESTION_WITH_ARG("F %1", name, Msg::Cancel, Msg::Cancel);
    ASK_QUESTION_WITH_ARG("G %1", name, Msg::Discard, Msg::Discard);
    ASK_QUESTION_WITH_ARGS("H %1 %2", x, No, Yes | No, Yes);
    ASK_QUESTION_WITH_ARGS("I %1 %2", buttons, preferred, x, No);
    ASK_QUESTION_WITH_ARGS("J %1 %2", Yes | No, Yes, Ok, Ok);
}
