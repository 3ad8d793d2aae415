#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "fenn/folders.h"
#include "platform/portable/native_path.h"

namespace fenn {
namespace {

class OpenFolder {
  public:
    explicit OpenFolder(const wchar_t* path) {
        std::string native;
        if (platform::to_native(path, native)) folder_ = opendir(native.c_str());
    }
    ~OpenFolder() {
        if (folder_) closedir(folder_);
    }
    OpenFolder(const OpenFolder&) = delete;
    OpenFolder& operator=(const OpenFolder&) = delete;

    explicit operator bool() const { return folder_ != nullptr; }
    // The next entry; null at the end, and with errno set when the folder cannot be read on.
    const dirent* next() {
        errno = 0;
        return readdir(folder_);
    }
    // The entry's own word is enough, unless it is a link or the file system tells no types.
    bool is_folder(const dirent& entry) const {
        if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return entry.d_type == DT_DIR;
        struct stat status;
        return fstatat(dirfd(folder_), entry.d_name, &status, 0) == 0 && S_ISDIR(status.st_mode);
    }
    int access(const dirent& entry) const {
        return faccessat(dirfd(folder_), entry.d_name, R_OK | X_OK, AT_EACCESS) == 0 ? 0 : errno;
    }

  private:
    DIR* folder_ = nullptr;
};

bool is_dots(const char* name) { return name[0] == '.' && (!name[1] || (name[1] == '.' && !name[2])); }

} // namespace

bool list_folders(const wchar_t* path, Folders& folders) {
    OpenFolder folder(path);
    if (!folder) return false;
    while (const dirent* entry = folder.next()) {
        if (is_dots(entry->d_name) || !folder.is_folder(*entry)) continue;
        const int refusal = folder.access(*entry);
        if (refusal == ENOENT) continue; // it has just gone
        folders.entries.push_back({folders.names.size(), refusal != 0});
        platform::append_name(folders.names, entry->d_name);
        folders.names += L'\0';
    }
    return errno == 0;
}

bool has_folder(const wchar_t* path) {
    OpenFolder folder(path);
    if (!folder) return false;
    while (const dirent* entry = folder.next())
        if (entry->d_name[0] != '.' && folder.is_folder(*entry)) return true;
    return false;
}

} // namespace fenn
