#pragma once

#include <QStringList>
#include <QtGlobal>

/// The warnings of the configuration's logging category while it lives, instead of the diagnostic output.
/// Other messages go on to where they went.
class RecordedDiagnostics
{
public:
    RecordedDiagnostics()
        : m_previous(qInstallMessageHandler(record))
    {
        next() = m_previous;
        lines().clear();
    }
    RecordedDiagnostics(const RecordedDiagnostics &) = delete;
    RecordedDiagnostics &operator=(const RecordedDiagnostics &) = delete;
    ~RecordedDiagnostics() { qInstallMessageHandler(m_previous); }

    static const QStringList &list() { return lines(); }

private:
    static QStringList &lines()
    {
        static QStringList lines;
        return lines;
    }

    static QtMessageHandler &next()
    {
        static QtMessageHandler next = nullptr;
        return next;
    }

    static void record(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (type == QtWarningMsg && qstrcmp(context.category, "nvx.configuration") == 0)
            lines().append(text);
        else if (next())
            next()(type, context, text);
    }

    QtMessageHandler m_previous;
};
