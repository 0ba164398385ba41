// Measures how long the Message Table Utility takes to open a table, compared with filling a QTableWidget
// with plain items, and to respond to a key in its filter field. Arguments: numbers of messages, by default
// 1000 10000 100000.

#include "clt_message_table.h"
#include "measure.h"
#include "message_table_utility/error_message_table_utility.h"
#include "message_table_utility/message_rows.h"
#include "support/recording_dialogs.h"
#include "window/marked_table_view.h"

#include <QApplication>
#include <QLineEdit>
#include <QSettings>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTextStream>

#include <array>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int columns = 4;
constexpr int messagesPerContext = 12;

using Cells = std::array<QString, columns>;

Clt::Message messageOf(int number)
{
    Clt::Message message;
    message.setSeverity(Clt::Severity::Warning);
    message.setState(static_cast<Clt::MessageState>(number % 3));
    message.setKey(
        {u"MESSAGE_TAG_%1"_s.arg(number, 7, 10, QLatin1Char('0')),
         u"Clt::Component%1::handleRequest"_s.arg(number / messagesPerContext, 6, 10, QLatin1Char('0')),
         u"client"_s});
    message.setText(u"The value %1 lies outside the range of model %2."_s.arg(u"%1"_s).arg(number));
    return message;
}

Clt::MessageTable tableOf(int count)
{
    Clt::MessageTable table;
    for (int number = 0; number < count; ++number)
        table.insert(messageOf(number));
    return table;
}

/// Copies of the texts that the table shows.
std::vector<Cells> cellsOf(const Clt::MessageTable &table)
{
    std::vector<Cells> cells;
    for (const auto &[key, message] : table)
        cells.push_back({key.process, key.context, key.tag, Clt::stateToText(message.state())});
    return cells;
}

/// A visible table widget that is filled repeatedly.
class PlainTable
{
public:
    PlainTable()
    {
        m_widget.setColumnCount(columns);
        m_widget.show();
        QApplication::processEvents();
    }

    void clear() { m_widget.setRowCount(0); }

    void fill(const std::vector<Cells> &rows)
    {
        m_widget.setRowCount(static_cast<int>(rows.size()));
        for (int row = 0; row < m_widget.rowCount(); ++row) {
            for (int column = 0; column < columns; ++column)
                m_widget.setItem(row, column,
                                 new QTableWidgetItem(
                                     rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]));
        }
        QApplication::processEvents();
    }

private:
    QTableWidget m_widget;
};

struct Opening
{
    double open = 0;  // from the file to the rows on the screen
    double load = 0;  // only reading the file
    double show = 0;  // from the messages to the rows on the screen
    double plain = 0; // filling the table widget
};

Opening measureOpening(MessageTableUtility &window, const QString &fileName, const std::vector<Cells> &cells)
{
    auto *view = window.findChild<Window::MarkedTableView *>(u"tableWidget"_s);
    PlainTable plain;
    Bench::Samples open{};
    Bench::Samples load{};
    Bench::Samples show{};
    Bench::Samples fill{};
    for (std::size_t run = 0; run < Bench::runs; ++run) {
        plain.clear();
        fill[run] = Bench::milliseconds([&] { plain.fill(cells); });
        load[run] = Bench::milliseconds([&] {
            Clt::MessageTable table;
            if (!table.load(fileName))
                qFatal("cannot load the written file");
        });
        window.newTable();
        open[run] = Bench::milliseconds([&] {
            if (!window.openFile(fileName))
                qFatal("cannot open the written file");
            QApplication::processEvents();
        });
        view->showRows(Window::MarkedRows(columns));
        show[run] = Bench::milliseconds([&] {
            view->showRows(MessageWindow::messageRows(window.messages()));
            QApplication::processEvents();
        });
    }
    return {Bench::median(open), Bench::median(load), Bench::median(show), Bench::median(fill)};
}

/// The slowest key while a filter is typed and deleted, the median of the runs.
double measureFilter(MessageTableUtility &window)
{
    auto *field = window.findChild<QLineEdit *>(u"filterField"_s);
    const QString typed = u"TAG_0042zz"_s;
    Bench::Samples slowest{};
    for (double &sample : slowest) {
        const auto press = [&](const QString &text) {
            const double took = Bench::milliseconds([&] {
                field->setText(text);
                QApplication::processEvents();
            });
            sample = std::max(sample, took);
        };
        for (qsizetype length = 1; length <= typed.size(); ++length)
            press(typed.left(length));
        for (qsizetype length = typed.size(); length >= 0; --length)
            press(typed.left(length));
    }
    return Bench::median(slowest);
}

void measure(int count, QTextStream &out)
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(u"table.xml"_s);
    Clt::MessageTable table = tableOf(count);
    if (!table.save(fileName))
        qFatal("cannot save");

    QSettings settings(folder.filePath(u"settings.ini"_s), QSettings::IniFormat);
    RecordingDialogs dialogs;
    MessageTableUtility window(dialogs, settings);
    window.show();
    const Opening opening = measureOpening(window, fileName, cellsOf(table));
    const double filter = measureFilter(window);
    out << QString::asprintf("%9d %8.1f %8.1f %8.1f %8.1f %8.2f %8.1f\n", count, opening.open, opening.load,
                             opening.show, opening.plain, opening.show / opening.plain, filter)
        << Qt::flush;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QStringList counts = QApplication::arguments().mid(1);
    if (counts.isEmpty())
        counts = u"1000 10000 100000"_s.split(u' ');
    QTextStream out(stdout);
    out << "medians of five, in ms: opening a file; reading it alone; showing the messages that were read; "
           "filling "
           "a\n"
        << "table widget with as many plain items; the ratio of these two; the slowest key in the filter "
           "field\n"
        << " messages     open     load     show    plain    ratio   filter\n"
        << Qt::flush;
    for (const QString &count : std::as_const(counts))
        measure(count.toInt(), out);
    return 0;
}
