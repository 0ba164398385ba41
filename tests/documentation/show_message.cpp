// Shows a message as the product does: show_message TABLE QM PROCESS CONTEXT TAG [ARGUMENT...]

#include "clt_message_table.h"

#include <QCoreApplication>
#include <QTextStream>
#include <QTranslator>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 6)
        return 2;

    QTranslator translator;
    if (!translator.load(words.at(2)) || !QCoreApplication::installTranslator(&translator))
        return 1;
    Clt::MessageTable table; // its texts are translated while they are read
    if (!table.load(words.at(1)))
        return 1;

    Clt::MessageKey key;
    key.process = words.at(3);
    key.context = words.at(4);
    key.tag = words.at(5);
    Clt::Message message = table.message(key);
    message.applyArguments(words.mid(6));
    QTextStream(stdout) << message.title() << '\n' << message.text() << '\n' << message.action() << '\n';
    return 0;
}
