#include <cstring>

#include "page.h"

std::unique_ptr<Page> make_page_basics();
std::unique_ptr<Page> make_page_values();
std::unique_ptr<Page> make_page_items();
std::unique_ptr<Page> make_page_colour();
std::unique_ptr<Page> make_page_console();
std::unique_ptr<Page> make_page_files();
std::unique_ptr<Page> make_page_popups();

const PageEntry pages[] = {
    {"Basics", make_page_basics},  {"Values", make_page_values},   {"Items", make_page_items},
    {"Colour", make_page_colour},  {"Console", make_page_console}, {"Files", make_page_files},
    {"Pop-ups", make_page_popups},
};
const std::size_t page_count = sizeof pages / sizeof pages[0];

const PageEntry* page_find(const char* name) {
    for (const PageEntry& entry : pages)
        if (std::strcmp(entry.name, name) == 0) return &entry;
    return nullptr;
}
