msgid "a"
msgstr "A"
