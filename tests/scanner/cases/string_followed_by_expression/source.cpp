void f() { REPORT_ERROR("Tag" + suffix); REPORT_MESSAGE("Other", extra); }
