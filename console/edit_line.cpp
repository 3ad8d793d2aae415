#include <brask/texts.h>

#include <brask/fenn.h>

#include "foundation/trace.h"

using namespace brask;

void Texts::Read(const char*, ...) { Trace trace("Texts::Read", *this); }
void Texts::Read(const wchar_t*, ...) { Trace trace("Texts::Read", *this); }
void Texts::Read(std::nullptr_t) { Read(static_cast<const wchar_t*>(nullptr)); }

void Texts::Input(int) { Trace trace("Texts::Input", *this); }

char* Texts::Update() {
    Trace trace("Texts::Update", *this);
    return nullptr;
}
void* Texts::Update(char wide) { return wide ? nullptr : Update(); }
