#include <brask/texts.h>

#include "foundation/trace.h"

using namespace brask;

void Texts::Draw() { Trace trace("Texts::Draw", *this); }
void Texts::Re_Write() {}
void Texts::Rescale_Cursor() {}
void Texts::Read_Echo(const wchar_t*, int) {}
wchar_t* Texts::Read_Line() { return nullptr; }
int Texts::Select(int, int, int) { return 0; }
void Texts::Deselect() {}
void Texts::Scroll(int) {}
