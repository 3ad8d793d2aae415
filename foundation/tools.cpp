#include <brask/tools.h>

#include <cstdlib>
#include <cstring>

#include "foundation/trace.h"

using namespace brask;

Tools::Tools() {
    std::memset(static_cast<void*>(this), 0, sizeof *this);
    Trace trace("Tools::Tools");
}

Tools::Tools(const Tools&) = default;
Tools& Tools::operator=(const Tools&) = default;

Tools::~Tools() {
    Trace trace("Tools::~Tools");
    W_Name = static_cast<wchar_t*>(Free(W_Name));
    if (Graph_Normal == Graph_Select) Graph_Normal = nullptr;
    Graph_Select = static_cast<DWORD*>(Free(Graph_Select));
    Graph_Normal = static_cast<DWORD*>(Free(Graph_Normal));
    test = 0;
}

void* Tools::Free(void* p) {
    std::free(p);
    return nullptr;
}
