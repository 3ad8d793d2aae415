#ifndef FENN_TEST_NOBODY_H
#define FENN_TEST_NOBODY_H

#include <gtest/gtest.h>

#ifndef _WIN32
#include <unistd.h>
#endif

// Rights mean nothing to the root user: as long as this lives, a test acts as nobody then.
class AsNobody {
#ifdef _WIN32
  public:
    AsNobody() {}
    ~AsNobody() {}
#else
  public:
    AsNobody() { become(65534); }
    ~AsNobody() { become(0); }

  private:
    void become(uid_t user) {
        if (!root_) return;
        EXPECT_EQ(seteuid(user), 0);
    }
    const bool root_ = geteuid() == 0;
#endif
};

#endif
