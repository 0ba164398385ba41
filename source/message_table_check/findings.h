#pragma once

#include "message_checks/rule.h"
#include "nvx_util/result.h"

#include <QString>

#include <map>
#include <vector>

class QIODevice;

namespace TableCheck {

/// Something wrong in a file.
struct Finding
{
    qint64 line = 0; ///< where the message or string begins, counted from 1
    Checks::Rule rule = Checks::Rule::New;
    QString text; ///< names the message or the string
};

enum class FileKind
{
    MessageTable,
    TranslationFile
};

/// What a file contains and what is wrong with it.
struct FileReport
{
    QString file;
    FileKind kind = FileKind::MessageTable;
    int entries = 0;               ///< messages or strings
    std::vector<Finding> findings; ///< in the order of the lines
    /// The number of messages or strings with findings of a rule; rules without findings are left out.
    std::map<Checks::Rule, int> entriesWith;
};

/// Checks a message table or a translation file; its root element decides which of the two it is. Fails if
/// the document is neither, or is not well formed; the error names the line.
Nvx::Util::Result<FileReport> checkDocument(QIODevice &device);

/// The same with a file, whose name is in the report.
Nvx::Util::Result<FileReport> checkFile(const QString &fileName);

} // namespace TableCheck
