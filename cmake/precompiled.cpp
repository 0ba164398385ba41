// A precompiled header needs a source that it is made for.
