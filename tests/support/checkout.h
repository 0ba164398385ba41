#pragma once

#include <QString>

/// The whole path of a file or folder that nvx_test_paths() of the build has given as a path below the
/// checkout. A test with whole paths in it would be compiled again in every checkout.
QString inCheckout(const char *path);
