// Mount tables: whatever lines they have, there is a root, letters are told apart, and each path has its
// drive.

#include <algorithm>

#include "input.h"
#include "platform/portable/mount_table.h"

namespace {

void add_field(Input& input, std::string& table) {
    static constexpr const char* words[] = {"/",     "/",   "/a",       "/a/b",     "/b\\040c", "-",
                                            "8:1",   "8:2", "0:9",      "rw",       "ext4",     "nfs",
                                            "btrfs", "zfs", "/dev/sda", "/dev/sdb", "\\0"};
    if (input.one_in(8))
        for (unsigned left = input.below(8); left > 0; left--)
            table += static_cast<char>(input.byte());
    else
        table += input.among(words);
    table += input.one_in(16) ? '\n' : ' ';
}

// A line as it should be, or one that is made of fields as they come.
void add_line(Input& input, std::string& table) {
    if (input.one_in(3)) {
        for (unsigned left = input.below(14); left > 0; left--)
            add_field(input, table);
        table += '\n';
        return;
    }
    const std::string number = std::to_string(input.below(40));
    const std::string point = input.one_in(8) ? "/" : "/m" + std::to_string(input.below(40));
    table += "1 0 8:" + number + " / " + point + " rw - ext4 /dev/d" + number + " rw\n";
}

bool is_same(const platform::Mount& a, const platform::Mount& b) {
    return a.point == b.point && a.device == b.device && a.source == b.source;
}

void expect_kept(const platform::DriveLetters& before, const std::vector<platform::Mount>& mounts,
                 const platform::DriveLetters& now) {
    for (wchar_t letter = L'A'; letter <= L'Z'; letter++) {
        const platform::Mount* const had = before.find(letter);
        const auto same = [&](const platform::Mount& mount) { return is_same(mount, *had); };
        if (!had || std::none_of(mounts.begin(), mounts.end(), same)) continue;
        const platform::Mount* const has = now.find(letter);
        expect(has && is_same(*had, *has), "a letter stays with its mount");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    platform::DriveLetters drives;
    while (!input.empty()) {
        std::string table;
        for (unsigned left = input.below(50); left > 0; left--)
            add_line(input, table);
        const std::vector<platform::Mount> mounts = platform::real_mounts(table);
        expect(!mounts.empty() && mounts[0].point.empty(), "the root comes first");
        const platform::DriveLetters before = drives;
        drives.assign(mounts);
        expect_kept(before, mounts, drives);
        const platform::Mount* const root = drives.find(L'C');
        expect(root && root->point.empty(), "drive C is the root");
        for (wchar_t letter = L'A'; letter <= L'Z'; letter++) {
            const platform::Mount* const mount = drives.find(letter);
            if (!mount) continue;
            std::size_t length = 0;
            expect(drives.holder(mount->point + "/x", length) == letter, "a drive holds what is in it");
            expect(length == mount->point.size(), "below its own point");
        }
    }
    return 0;
}
