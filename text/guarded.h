#ifndef TEXT_GUARDED_H
#define TEXT_GUARDED_H

#include <cerrno>
#include <new>

namespace text {

// The door of a library whose callers know no exceptions: where memory runs out behind it, the answer is
// `otherwise`, and errno says why. What a host does in a call of its own procedure is not to stand behind
// one.
template <class Result, class Action>
Result guarded(Result otherwise, Action action) {
    try {
        return action();
    } catch (const std::bad_alloc&) {
        errno = ENOMEM;
        return otherwise;
    }
}

} // namespace text

#endif
