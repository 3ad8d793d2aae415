#ifndef TESTS_DISK_MODEL_H
#define TESTS_DISK_MODEL_H

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

// The tree of folders written down a second time, step by step and without a thought of speed: lists of
// records, and a disk that is asked through the standard library. It knows one folder of the disk and what
// lies below.
namespace model {

// A name as the disk has it, as the library has it, and in small letters.
struct Name {
    const char* native;
    const wchar_t* wide;
    const wchar_t* small;
};

struct Node {
    std::wstring name, path;
    bool whole_path = true; // false: it was too long
    unsigned flag = 0;
    bool listed = false; // there is an array of children
    std::vector<Node> children;
};

constexpr unsigned closed = 1, open = 2, leaf = 4, no_access = 8, last = 16, selected = 128;

class Disk {
  public:
    Disk(std::filesystem::path folder, const std::vector<Name>& names)
        : folder_(std::move(folder)), names_(names) {}

    struct Entry {
        std::wstring name;
        bool no_access;
        bool operator==(const Entry& other) const { return name == other.name; }
    };
    // Sub-folders in their order, with those that begin with a dot; false: cannot be listed. `inside` is a
    // path of the library from the folder on, "a\b\".
    bool list(const std::wstring& inside, std::vector<Entry>& entries) const {
        std::error_code error;
        std::filesystem::directory_iterator found(native(inside), error);
        if (error) return false;
        std::vector<std::pair<const Name*, bool>> order;
        for (const auto& entry : found) {
            const Name* const name = known(entry.path().filename().string());
            if (!name || !entry.is_directory(error)) continue;
            std::filesystem::directory_iterator(entry.path(), error);
            order.push_back({name, static_cast<bool>(error)});
        }
        std::sort(order.begin(), order.end(), [](const auto& a, const auto& b) {
            const int small = std::wstring(a.first->small).compare(b.first->small);
            return small != 0 ? small < 0 : std::wstring(a.first->wide) < b.first->wide;
        });
        entries.clear();
        for (const auto& [name, refused] : order)
            entries.push_back({name->wide, refused});
        return true;
    }
    bool has_visible(const std::wstring& inside) const {
        std::vector<Entry> entries;
        return list(inside, entries) && visible(entries) > 0;
    }
    std::filesystem::path native(const std::wstring& inside) const {
        std::filesystem::path path = folder_;
        for (std::size_t at = 0, end; (end = inside.find(L'\\', at)) != std::wstring::npos; at = end + 1)
            path /= native_name(inside.substr(at, end - at));
        return path;
    }
    std::wstring small(const std::wstring& inside) const {
        std::wstring path;
        for (std::size_t at = 0, end; (end = inside.find(L'\\', at)) != std::wstring::npos; at = end + 1)
            for (const Name& name : names_)
                if (inside.substr(at, end - at) == name.wide) path += name.small + std::wstring(L"\\");
        return path;
    }
    static int visible(const std::vector<Entry>& entries) {
        return static_cast<int>(
            std::count_if(entries.begin(), entries.end(), [](const Entry& e) { return e.name[0] != L'.'; }));
    }

  private:
    const Name* known(const std::string& native) const {
        for (const Name& name : names_)
            if (native == name.native) return &name;
        return nullptr;
    }
    std::string native_name(const std::wstring& wide) const {
        for (const Name& name : names_)
            if (wide == name.wide) return name.native;
        return "?";
    }

    std::filesystem::path folder_;
    const std::vector<Name>& names_;
};

// Paths count from the folder on: that of the root is empty. `prefix` is the length of what stands in front
// of it.
class Tree {
  public:
    Tree(const Disk& disk, std::size_t prefix) : disk_(disk), prefix_(prefix) {}

    Node root;
    Node* current = nullptr;

    void set(const std::wstring& target) {
        root = {};
        root.flag = disk_.has_visible(L"") ? closed : leaf;
        const std::wstring small = disk_.small(target);
        scan(root, &small);
        current = find(root, small);
        if (current) current->flag |= selected;
    }
    // Of a row; false when its box does not react.
    bool toggle(Node& node) {
        if (node.flag & closed) {
            node.flag = (node.flag & ~closed) | open;
            if (!node.listed) scan(node, nullptr);
            return true;
        }
        if (!(node.flag & open)) return false;
        node.flag = (node.flag & ~open) | closed;
        return true;
    }
    bool choose(Node& node) {
        if (node.flag & no_access) return false;
        if (current) current->flag &= ~selected;
        node.flag |= selected;
        current = &node;
        return true;
    }
    void refresh() {
        Node* result = root.flag & open ? refresh(root) : nullptr;
        // What the folder above does with this one.
        std::vector<Disk::Entry> entries;
        disk_.list(L"", entries);
        renew(root, false, Disk::visible(entries));
        current = root.flag & selected ? &root : result;
    }
    // The rows below the root's: depth, name, flags.
    struct Row {
        int depth;
        Node* node;
    };
    std::vector<Row> rows() {
        std::vector<Row> list;
        add_rows(root, 0, list);
        return list;
    }

  private:
    bool is_whole(const std::wstring& path) const { return prefix_ + path.size() <= 769; }

    Node make(const Node& parent, const Disk::Entry& entry) const {
        Node node;
        node.name = entry.name;
        node.path = parent.path + entry.name;
        node.whole_path = is_whole(node.path);
        if (node.whole_path)
            node.path += L'\\';
        else
            node.path.resize(770 - prefix_);
        return node;
    }
    bool leads(const Node& node, const std::wstring& target) const {
        const std::wstring small = disk_.small(node.path);
        return node.whole_path && target.compare(0, small.size(), small) == 0;
    }
    void scan(Node& node, const std::wstring* target) {
        std::vector<Disk::Entry> entries;
        if (!node.whole_path || !disk_.list(node.path, entries)) {
            node.flag |= no_access;
            return;
        }
        if (Disk::visible(entries) == 0) {
            node.flag = (node.flag & ~open) | leaf;
            return;
        }
        node.flag |= open;
        node.listed = true;
        node.children.clear();
        for (const Disk::Entry& entry : entries) {
            if (entry.name[0] == L'.') continue;
            Node child = make(node, entry);
            child.flag = entry.no_access || !child.whole_path ? no_access
                         : disk_.has_visible(child.path)      ? closed
                                                              : leaf;
            node.children.push_back(child);
        }
        node.children.back().flag |= last;
        for (Node& child : node.children)
            if (target && leads(child, *target)) scan(child, target);
    }
    Node* find(Node& node, const std::wstring& small) {
        if (node.whole_path && disk_.small(node.path) == small) return &node;
        for (Node& child : node.children)
            if (Node* const found = find(child, small)) return found;
        return nullptr;
    }
    static bool holds_choice(const Node& node) {
        return (node.flag & selected) ||
               std::any_of(node.children.begin(), node.children.end(), holds_choice);
    }
    static Node* chosen_child(Node& node) {
        for (Node& child : node.children)
            if (child.flag & selected) return &child;
        return nullptr;
    }
    static void renew(Node& node, bool refused, int count) {
        if (refused)
            node.flag = no_access;
        else if (count == 0)
            node.flag = (node.flag & ~(open | closed)) | leaf;
        else if (!(node.flag & (open | closed)))
            node.flag = (node.flag & ~leaf) | closed;
    }
    // The result is a path and a name, since records move while their parents' lists are made anew.
    Node* refresh(Node& node) {
        Node* found = nullptr;
        for (Node& child : node.children)
            if (child.flag & open)
                if (Node* const chosen = refresh(child)) found = chosen;
        bool among = chosen_child(node) != nullptr;
        std::vector<Disk::Entry> entries;
        if (!disk_.list(node.path, entries)) {
            node.flag |= no_access;
            return nullptr;
        }
        const Node* const found_before = found;
        std::vector<std::size_t> way = found_before ? way_to(node, found_before) : std::vector<std::size_t>();
        std::vector<Node> old = std::move(node.children), now;
        int counter = Disk::visible(entries), index = -1;
        std::size_t next = 0, chosen_at = npos, result_at = npos;
        for (const Disk::Entry& entry : entries) {
            index++;
            if (entry.name[0] == L'.') continue;
            Node fresh = make(node, entry);
            std::size_t at = next;
            while (at < old.size() && (old[at].name != fresh.name || old[at].path != fresh.path))
                at++;
            if (at < old.size()) {
                for (; next < at; next++)
                    among = drop(old[next], way, next, found) || among;
                if (found && !way.empty() && way[0] == at) result_at = now.size();
                fresh = std::move(old[at]);
                next = at + 1;
            }
            std::vector<Disk::Entry> below;
            const bool refused = entry.no_access || !fresh.whole_path || !disk_.list(fresh.path, below);
            if (!refused) counter = Disk::visible(below);
            renew(fresh, refused, counter);
            fresh.flag = index == counter - 1 ? fresh.flag | last : fresh.flag & ~last;
            now.push_back(std::move(fresh));
            if (now.back().flag & selected) chosen_at = now.size() - 1;
        }
        for (; next < old.size(); next++)
            among = drop(old[next], way, next, found) || among;
        node.children = std::move(now);
        node.listed = !node.children.empty();
        if (chosen_at != npos) return chosen_child(node);
        if (found) {
            found = &node.children[result_at];
            for (std::size_t i = 1; i < way.size(); i++)
                found = &found->children[way[i]];
        }
        if (!among) return found;
        node.flag |= selected;
        return &node;
    }
    // A record that has gone; true when it took the choice with it.
    static bool drop(const Node& gone, const std::vector<std::size_t>& way, std::size_t at, Node*& found) {
        if (!way.empty() && way[0] == at) found = nullptr;
        return holds_choice(gone);
    }
    static std::vector<std::size_t> way_to(const Node& from, const Node* to) {
        for (std::size_t i = 0; i < from.children.size(); i++) {
            if (&from.children[i] == to) return {i};
            std::vector<std::size_t> way = way_to(from.children[i], to);
            if (!way.empty()) {
                way.insert(way.begin(), i);
                return way;
            }
        }
        return {};
    }
    static void add_rows(Node& node, int depth, std::vector<Row>& list) {
        if (!(node.flag & open)) return;
        for (Node& child : node.children) {
            list.push_back({depth, &child});
            add_rows(child, depth + 1, list);
        }
    }

    static constexpr std::size_t npos = static_cast<std::size_t>(-1);
    const Disk& disk_;
    const std::size_t prefix_;
};

} // namespace model

#endif
