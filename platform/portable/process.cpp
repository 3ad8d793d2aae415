#include "process.h"

#include <dlfcn.h>
#include <link.h>
#include <sys/auxv.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <mutex>
#include <new>
#include <string>

#include "text/guarded.h"
#include "text/unicode.h"

namespace platform {

static_assert(sizeof(std::recursive_mutex) <= sizeof CRITICAL_SECTION::room);

static std::recursive_mutex* lock_of(CRITICAL_SECTION* section) {
    return section ? static_cast<std::recursive_mutex*>(section->state) : nullptr;
}

static std::uint64_t milliseconds() {
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<std::uint64_t>(now.tv_sec) * 1000 + static_cast<std::uint64_t>(now.tv_nsec) / 1000000;
}

// A module's handle is the address that it is loaded at.
static HMODULE module_at(const void* address) {
    Dl_info info;
    if (!address || !dladdr(address, &info)) return nullptr;
    return static_cast<HMODULE>(info.dli_fbase);
}

static HMODULE program() { return module_at(reinterpret_cast<const void*>(getauxval(AT_PHDR))); }

static std::string program_path() {
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string();
}

static std::string module_path(HMODULE module) {
    if (!module || module == program()) return program_path();
    Dl_info info;
    if (!dladdr(module, &info) || info.dli_fbase != module || !info.dli_fname) return {};
    char whole[PATH_MAX];
    return realpath(info.dli_fname, whole) ? whole : info.dli_fname;
}

// "a/b/name.so.1" -> "name.so.1", and, bare, -> "name".
static std::string file_name(const std::string& path, bool bare) {
    const std::size_t slash = path.find_last_of("/\\");
    const std::string file = slash == std::string::npos ? path : path.substr(slash + 1);
    return bare ? file.substr(0, file.find('.')) : file;
}

struct ModuleSearch {
    std::string name;
    HMODULE found;
};

static int visit_module(dl_phdr_info* info, std::size_t, void* data) {
    auto* search = static_cast<ModuleSearch*>(data);
    if (!info->dlpi_name || !info->dlpi_name[0] || info->dlpi_phnum == 0) return 0;
    const bool bare = search->name.find('.') == std::string::npos;
    if (file_name(info->dlpi_name, bare) != search->name) return 0;
    search->found = module_at(info->dlpi_phdr);
    return search->found != nullptr;
}

static HMODULE module_named(LPCWSTR name) {
    ModuleSearch search{file_name(text::to_utf8(name), false), nullptr};
    const std::string own = program_path();
    if (search.name == file_name(own, false) || search.name == file_name(own, true)) return program();
    dl_iterate_phdr(visit_module, &search);
    return search.found;
}

} // namespace platform

using namespace platform;

extern "C" {

void InitializeCriticalSection(CRITICAL_SECTION* section) {
    if (section) section->state = new (section->room) std::recursive_mutex;
}

void EnterCriticalSection(CRITICAL_SECTION* section) {
    if (auto* lock = lock_of(section)) lock->lock();
}

BOOL TryEnterCriticalSection(CRITICAL_SECTION* section) {
    auto* lock = lock_of(section);
    return lock && lock->try_lock();
}

void LeaveCriticalSection(CRITICAL_SECTION* section) {
    if (auto* lock = lock_of(section)) lock->unlock();
}

void DeleteCriticalSection(CRITICAL_SECTION* section) {
    if (auto* lock = lock_of(section)) lock->~recursive_mutex();
    if (section) section->state = nullptr;
}

DWORD GetModuleFileNameW(HMODULE module, LPWSTR path, DWORD size) {
    if (!path || size == 0) return 0;
    path[0] = 0;
    return text::guarded<DWORD>(0, [=] {
        const std::wstring whole = text::to_wide(module_path(module).c_str());
        const std::size_t length = std::min<std::size_t>(whole.size(), size - 1);
        whole.copy(path, length);
        path[length] = 0;
        return length < whole.size() ? size : static_cast<DWORD>(length);
    });
}

HMODULE GetModuleHandleW(LPCWSTR name) {
    return name ? text::guarded<HMODULE>(nullptr, [=] { return module_named(name); }) : program();
}

BOOL GetModuleHandleExW(DWORD flags, LPCWSTR name_or_address, HMODULE* module) {
    if (!module) return FALSE;
    const bool by_address = flags & GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS;
    *module = by_address ? module_at(name_or_address) : GetModuleHandleW(name_or_address);
    return *module != nullptr;
}

DWORD GetTickCount() { return static_cast<DWORD>(milliseconds()); }
ULONGLONG GetTickCount64() { return milliseconds(); }

void Sleep(DWORD duration) {
    timespec left = {static_cast<time_t>(duration / 1000), static_cast<long>(duration % 1000) * 1000000};
    while (nanosleep(&left, &left) != 0 && errno == EINTR) {
    }
}

DWORD GetCurrentThreadId() { return static_cast<DWORD>(syscall(SYS_gettid)); }
}
