#include "foundation/checks.h"

#include "foundation/trace.h"

namespace brask {

void warn_first_use(Tools& control, const char* type) {
    Error_Fct(hwnd, REPORT_FIRST_USE, "Tools: WARNING ! ");
    // A name given before Init leaves its bit, and so the object does not look untouched.
    Error_Fct(hwnd, REPORT_FIRST_USE,
              control.test ? "   bad data in device's structure" : "   you must call *_Init() first");
    Error_Fct(hwnd, REPORT_FIRST_USE, "   type: %hs   name: %ls\n", type, report_name(control));
    control.test = TEST_WARNED;
}

void warn(const char* what, const char* type, const wchar_t* name) {
    Error_Fct(hwnd, REPORT_WARNING, "Tools: WARNING ! ");
    Error_Fct(hwnd, REPORT_WARNING, what);
    Error_Fct(hwnd, REPORT_WARNING, "   type: %hs   name: %ls", type, name);
}

bool missing_window(const Tools& control, const char* type) {
    if (control.Wnd) return false;
    warn("   you must provide a window", type, report_name(control));
    return true;
}

} // namespace brask
