void f() { ASK_QUESTION("\ud83d", Yes, Yes); }
