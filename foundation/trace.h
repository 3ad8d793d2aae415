#ifndef FOUNDATION_TRACE_H
#define FOUNDATION_TRACE_H

#include <brask/fenn.h>
#include <brask/tools.h>

namespace brask {

// Codes of the reports.
inline constexpr unsigned REPORT_TRACE = 0x90000029;
inline constexpr unsigned REPORT_WARNING = 0x90000021;
inline constexpr unsigned REPORT_FIRST_USE = 0x80000001;
inline constexpr unsigned REPORT_MEMORY = 1;

// What a control is called in reports.
inline const wchar_t* report_name(const Tools& control) {
    return control.W_Name ? control.W_Name : L"no name";
}

// Reports that an operation is entered, and when it is left, by which way. The tag of the way out is part of
// the behaviour; the normal end has the empty one. Declared first in an operation, it reports the exit last,
// after every bracket has closed.
class Trace {
  public:
    // Constructors, destructors and free functions have no control to name.
    explicit Trace(const char* op) : operation(op) {
        Error_Fct(hwnd, REPORT_TRACE, ">>> in  Lib_Brask: %hs()", operation);
    }
    Trace(const char* op, const Tools& control) : operation(op) {
        Error_Fct(hwnd, REPORT_TRACE, ">>> in  Lib_Brask: %hs(%ls)", operation, report_name(control));
    }
    Trace(const Trace&) = delete;
    Trace& operator=(const Trace&) = delete;
    ~Trace() {
        if (numbered)
            Error_Fct(hwnd, REPORT_TRACE, "<<< out Lib_Brask: %hs(%hs%d)", operation, tag, number);
        else
            Error_Fct(hwnd, REPORT_TRACE, "<<< out Lib_Brask: %hs(%hs)", operation, tag);
    }

    void out(const char* way) { tag = way; }
    template <typename Result>
    Result out(const char* way, Result result) {
        tag = way;
        return result;
    }
    // A tag that ends in a number, such as "new=7".
    template <typename Result>
    Result out(const char* way, int value, Result result) {
        numbered = true;
        number = value;
        return out(way, result);
    }

  private:
    const char* operation;
    const char* tag = "";
    int number = 0;
    bool numbered = false;
};

} // namespace brask

#endif
