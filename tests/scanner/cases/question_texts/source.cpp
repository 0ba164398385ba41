void f() {
    ASK_QUESTION("Save", QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    ASK_QUESTION("Save?", QMessageBox::Yes|QMessageBox::No, QMessageBox::No);
    ASK_QUESTION("Go on? ", Ok, Ok);
    ASK_QUESTION("One " "two", Msg :: Button :: Yes | /* or */ Cancel, Msg :: Cancel);
    ASK_QUESTION("", Yes, Yes);
}
