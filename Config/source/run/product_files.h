#pragma once

#include <QString>

/// Removes a file of the product even when it is write-protected, as files copied from read-only media are.
/// Of a link or a shortcut it removes the link, wherever it leads. True when it is gone, also when it never
/// was there.
bool removeProductFile(const QString &path);

/// Replaces a file of the product by a copy of another: the old file is removed first, so that a source that
/// is missing leaves none. True when the copy is there.
bool replaceProductFile(const QString &source, const QString &target);
