#pragma once

#include <QTest>

/// Defines the function with which a module's test program runs a test class; see nvx_tests in
/// cmake/NvxTargets.cmake. Like QTEST_MAIN, but not as main.
#define NVX_TEST_FUNCTION(TestClass, makeApplication)                                                        \
    int run_##TestClass(int argc, char *argv[]);                                                             \
    int run_##TestClass(int argc, char *argv[])                                                              \
    {                                                                                                        \
        QTest::Internal::callInitMain<TestClass>();                                                          \
        makeApplication;                                                                                     \
        TestClass test;                                                                                      \
        QTEST_SET_MAIN_SOURCE_PATH                                                                           \
        return QTest::qExec(&test, argc, argv);                                                              \
    }

/// A test class with a QApplication or QGuiApplication, if the program links Qt Widgets or Gui.
#define NVX_TEST(TestClass) NVX_TEST_FUNCTION(TestClass, QTEST_MAIN_SETUP())

/// A test class with a QCoreApplication.
#define NVX_GUILESS_TEST(TestClass) NVX_TEST_FUNCTION(TestClass, QTEST_QAPP_SETUP(QCoreApplication))
