#pragma once

#include <QByteArray>

namespace util {

/// The number of calls in a C++ source that mark a text for translation: tr, translate, QT_TR_NOOP,
/// QT_TRANSLATE_NOOP and their variants, each followed by a parenthesis and a string literal. Comments do not
/// count. Any bytes at all are taken.
int countTranslatableCalls(const QByteArray &source);

/// The number of texts in a form of Qt Designer that are to be translated: its elements "string" that hold
/// text and are not marked notr="true". What stands before an error in the XML counts.
int countTranslatableStrings(const QByteArray &form);

} // namespace util
