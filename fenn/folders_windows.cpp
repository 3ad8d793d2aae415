#include <cerrno>
#include <string>

#include <brask/platform.h>

#include "fenn/folders.h"
#include "fenn/windows_path.h"

namespace fenn {
namespace {

// A drive without a disk must fail, not ask the user for one.
class NoQuestions {
  public:
    NoQuestions() { SetThreadErrorMode(SEM_FAILCRITICALERRORS, &before_); }
    ~NoQuestions() { SetThreadErrorMode(before_, nullptr); }
    NoQuestions(const NoQuestions&) = delete;
    NoQuestions& operator=(const NoQuestions&) = delete;

  private:
    DWORD before_ = 0;
};

class FolderSearch {
  public:
    explicit FolderSearch(const wchar_t* path) {
        if (!path || !*path) {
            errno = path ? ENOENT : EINVAL;
            return;
        }
        folder_ = path;
        if (folder_.back() != L'\\' && folder_.back() != L'/') folder_ += L'\\';
        search_ = FindFirstFileExW(system_path((folder_ + L'*').c_str()).c_str(), FindExInfoBasic, &entry_,
                                   FindExSearchLimitToDirectories, nullptr, FIND_FIRST_EX_LARGE_FETCH);
        error_ = search_ == INVALID_HANDLE_VALUE ? GetLastError() : 0;
        errno = error_ ? error_number(error_) : 0;
    }
    ~FolderSearch() {
        if (search_ != INVALID_HANDLE_VALUE) FindClose(search_);
    }
    FolderSearch(const FolderSearch&) = delete;
    FolderSearch& operator=(const FolderSearch&) = delete;

    // An empty root has not even "." and "..".
    bool failed() const { return search_ == INVALID_HANDLE_VALUE && error_ != ERROR_FILE_NOT_FOUND; }
    // The next entry; null at the end, and with errno set when the folder cannot be read on.
    const WIN32_FIND_DATAW* next() {
        errno = 0;
        if (search_ == INVALID_HANDLE_VALUE) return nullptr;
        if (!first_ && !FindNextFileW(search_, &entry_)) {
            const DWORD error = GetLastError();
            if (error != ERROR_NO_MORE_FILES) errno = error_number(error);
            return nullptr;
        }
        first_ = false;
        return &entry_;
    }
    // Whether it can be listed: ERROR_SUCCESS, or what the system says.
    DWORD access() const {
        const HANDLE folder =
            CreateFileW(system_path((folder_ + entry_.cFileName).c_str()).c_str(), FILE_LIST_DIRECTORY,
                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                        FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        if (folder == INVALID_HANDLE_VALUE) return GetLastError();
        CloseHandle(folder);
        return ERROR_SUCCESS;
    }

  private:
    NoQuestions no_questions_;
    std::wstring folder_;
    WIN32_FIND_DATAW entry_{};
    HANDLE search_ = INVALID_HANDLE_VALUE;
    DWORD error_ = ERROR_PATH_NOT_FOUND;
    bool first_ = true;
};

bool is_folder(const WIN32_FIND_DATAW& entry) {
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool is_dots(const wchar_t* name) { return std::wcscmp(name, L".") == 0 || std::wcscmp(name, L"..") == 0; }

} // namespace

bool list_folders(const wchar_t* path, Folders& folders) {
    FolderSearch search(path);
    if (search.failed()) return false;
    while (const WIN32_FIND_DATAW* entry = search.next()) {
        if (!is_folder(*entry) || is_dots(entry->cFileName)) continue;
        const DWORD refusal = search.access();
        if (refusal == ERROR_FILE_NOT_FOUND || refusal == ERROR_PATH_NOT_FOUND) continue; // it has just gone
        folders.entries.push_back({folders.names.size(), refusal != ERROR_SUCCESS});
        folders.names.append(entry->cFileName, std::wcslen(entry->cFileName) + 1);
    }
    return errno == 0;
}

bool has_folder(const wchar_t* path) {
    FolderSearch search(path);
    if (search.failed()) return false;
    while (const WIN32_FIND_DATAW* entry = search.next())
        if (is_folder(*entry) && !is_dot_name(entry->cFileName)) return true;
    return false;
}

} // namespace fenn
