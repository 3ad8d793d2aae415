#include <brask/texts.h>

#include <cstdlib>
#include <cstring>

#include "console/store.h"
#include "foundation/trace.h"

using namespace brask;

Texts::Texts() {
    Trace trace("Texts::Texts");
    std::memset(static_cast<void*>(this), 0, sizeof *this);
}
Texts::Texts(const Texts& other) = default;
Texts& Texts::operator=(const Texts& other) = default;
Texts::~Texts() {
    Trace trace("Texts::~Texts");
    Lines = free_store(Lines, LOG_ROOM);
    std::free(Line_Width);
    History = free_store(History, HISTORY_ROOM);
}

void Texts::Init(HWND wnd) {
    Trace trace("Texts::Init", *this);
    if (wnd) Wnd = wnd;
}
void Texts::Write(const char*, ...) {}
void Texts::Write(const wchar_t*, ...) {}
void Texts::OverWrite(const char*, ...) {}
void Texts::OverWrite(const wchar_t*, ...) {}
void Texts::Center(int) {}
void Texts::Cleanup() {}
