#pragma once

#include <QByteArray>

namespace Localization {

/// The number of calls in a C++ source that mark a string for translation: tr, translate, QT_TR_NOOP,
/// QT_TRANSLATE_NOOP and their variants, followed by a parenthesis and a string literal. Comments do not
/// count. The source may be any bytes.
int countTranslatableCalls(const QByteArray &source);

/// The number of strings to translate in a Qt Designer form: its non-empty elements "string" without
/// notr="true". Those before an error in the XML count.
int countTranslatableStrings(const QByteArray &form);

} // namespace Localization
