#pragma once

#include "window/table_window.h"
#include "window_fixture.h"

inline Window::TableWindowTexts lineWindowTexts()
{
    using namespace Qt::Literals::StringLiterals;
    Window::TableWindowTexts texts;
    texts.title = u"Line Utility"_s;
    texts.headings = QStringList{u"Line"_s};
    texts.openTitle = u"Open Lines"_s;
    texts.saveTitle = u"Save Lines"_s;
    texts.filter = u"*.txt"_s;
    texts.notLoaded = u"Could not load lines"_s;
    texts.created = u"Created"_s;
    texts.opened = u"Opened %1"_s;
    texts.saved = u"Saved"_s;
    texts.savedAs = u"Saved as %1"_s;
    return texts;
}

/// A window on the lines of a text file. Opening an empty file acts like a user who cancels.
class LineWindow : public Window::TableWindow
{
public:
    LineWindow(Window::Dialogs &dialogs, QSettings &settings)
        : TableWindow(dialogs, settings, lineWindowTexts())
        , m_number(new QAction(QStringLiteral("Number"), this))
    {
        m_number->setObjectName(QStringLiteral("actionNumber"));
        addTableAction(m_number);
    }

    void addLine(const QByteArray &line)
    {
        m_lines.append(line);
        setUnsaved();
        showTable();
    }

    /// Works until it is cancelled or the time is over.
    void work(int milliseconds)
    {
        withProgress(QStringLiteral("Work"), QStringLiteral("Working"), [&](Window::Progress &progress) {
            QElapsedTimer timer;
            timer.start();
            while (timer.elapsed() < milliseconds && progress.report(timer.elapsed(), milliseconds))
                continue;
            return true;
        });
    }

    const QList<QByteArray> &lines() const { return m_lines; }

protected:
    void clearTable() override { m_lines.clear(); }

    Nvx::Util::Outcome loadTable(const QString &fileName, Window::Progress &progress) override
    {
        const std::optional<QByteArray> bytes = fileBytes(fileName);
        if (bytes && bytes->isEmpty())
            progress.cancel();
        if (!bytes || progress.isCancelled())
            return Nvx::Util::Failure{QStringLiteral("no such file")};
        m_lines = bytes->split('\n');
        return Nvx::Util::Done();
    }

    bool saveTable(const QString &fileName) override { return writeBytes(fileName, m_lines.join('\n')); }

    Window::MarkedRows rows() const override
    {
        Window::MarkedRows rows(1);
        for (const QByteArray &line : m_lines)
            rows.add({QString::fromUtf8(line)}, Window::RowMark::None);
        return rows;
    }

private:
    QAction *m_number;
    QList<QByteArray> m_lines;
};

/// The window and a file of two lines.
struct LineWindowFixture : WindowFixture<LineWindow>
{
    LineWindowFixture()
    {
        if (!writeBytes(file, "one\ntwo"))
            qFatal("cannot write");
    }

    QString file = folder.path(QStringLiteral("lines.txt"));
    QString otherFile = folder.path(QStringLiteral("other.txt"));
};
