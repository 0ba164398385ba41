#pragma once

#include <QStringList>
#include <QtGlobal>

/// Collects the warnings of the configuration's logging category while it exists. Other messages are passed
/// on to the previous handler.
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
