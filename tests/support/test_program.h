#pragma once

/// A test class of a test program: its name and the function that runs it.
struct TestClass
{
    const char *name;
    int (*run)(int argc, char *argv[]);
};

/// Runs the test class that the first argument names, with the remaining arguments, and returns its exit
/// code. Without a known name the names are listed and 2 is returned.
int runTestClass(const TestClass *classes, int count, int argc, char *argv[]);
