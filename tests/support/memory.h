#ifndef SUPPORT_MEMORY_H
#define SUPPORT_MEMORY_H

// Memory that runs out on order: while one of these lives, the n-th call of malloc, calloc, realloc or the
// non-throwing new from the program's own objects fails (and with `from_then_on` all later ones). Plain new,
// which the recorder uses, always succeeds, but for programs that link memory_plain: there it fails as well,
// wherever it is called. A block of more than 256 megabytes is refused at any time. The program links with
// the wrapped names: see the support folder's build file.
namespace memory {

class Failing {
  public:
    explicit Failing(int nth, bool from_then_on = false);
    ~Failing();
    Failing(const Failing&) = delete;
    Failing& operator=(const Failing&) = delete;
    bool happened() const;
};

// Whether this system's build can do it.
bool can_fail();

} // namespace memory

#endif
