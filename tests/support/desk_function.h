#ifndef SUPPORT_DESK_FUNCTION_H
#define SUPPORT_DESK_FUNCTION_H

// Defines one function of the desk.
//
// On Windows the archive calls through the import pointers, so that these take the place of user32's and
// gdi32's; elsewhere there is no other definition in the program.
#ifdef _WIN32
#define DESK_FUNCTION(result, name, ...)                                                                     \
    static result WINAPI desk_##name(__VA_ARGS__);                                                           \
    extern "C" {                                                                                             \
    decltype(&desk_##name) __imp_##name = desk_##name;                                                       \
    }                                                                                                        \
    static result WINAPI desk_##name(__VA_ARGS__)
#else
#define DESK_FUNCTION(result, name, ...) extern "C" result name(__VA_ARGS__)
#endif

#endif
