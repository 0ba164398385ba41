// The source file that a target with a precompiled header requires.
