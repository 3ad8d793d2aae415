// Handing a document to the desktop: a helper of our own stands in the path and notes what it is given.

#include <sys/stat.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include <brask/platform.h>

#include <gtest/gtest.h>

class Shell : public testing::Test {
  protected:
    void SetUp() override {
        char name[] = "/tmp/brask_shell_XXXXXX";
        folder = mkdtemp(name);
        old_path = std::getenv("PATH");
    }
    void TearDown() override {
        setenv("PATH", old_path.c_str(), 1);
        for (const char* file : {"/xdg-open", "/gio", "/note", "/done"})
            std::remove((folder + file).c_str());
        std::remove(folder.c_str());
    }

    void helper(const char* name) {
        const std::string file = folder + "/" + name;
        std::ofstream(file) << "#!/bin/sh\nfor word; do printf '[%s]' \"$word\"; done > '" << folder
                            << "/note'\n/bin/mv '" << folder << "/note' '" << folder << "/done'\n";
        chmod(file.c_str(), 0700);
        setenv("PATH", folder.c_str(), 1);
    }
    std::intptr_t open(const char* target, const char* operation = "open") {
        return reinterpret_cast<std::intptr_t>(
            ShellExecuteA(nullptr, operation, target, nullptr, nullptr, 1));
    }
    // What the helper was given; it runs on its own.
    std::string noted() {
        for (int i = 0; i < 1000; i++) {
            std::ifstream file(folder + "/done");
            if (file) return (std::stringstream() << file.rdbuf()).str();
            Sleep(10);
        }
        return "nothing";
    }

    std::string folder, old_path;
};

TEST_F(Shell, TheTargetIsOneArgumentAsItStands) {
    helper("xdg-open");
    EXPECT_GT(open("a b; $(touch x) 'q' \"r\" %s\xC3\xA9"), 32);
    EXPECT_EQ(noted(), "[a b; $(touch x) 'q' \"r\" %s\xC3\xA9]");
}

TEST_F(Shell, ATargetLikeAnOptionIsAName) {
    helper("xdg-open");
    EXPECT_GT(open("--manual", nullptr), 32);
    EXPECT_EQ(noted(), "[./--manual]");
}

TEST_F(Shell, ASecondHelperServesWhenTheFirstIsMissing) {
    helper("gio");
    EXPECT_GT(open("http://localhost/"), 32);
    EXPECT_EQ(noted(), "[open][http://localhost/]");
}

TEST_F(Shell, WithoutHelperOrTargetItFails) {
    setenv("PATH", folder.c_str(), 1);
    EXPECT_LE(open("x"), 32);
    helper("xdg-open");
    EXPECT_LE(open(nullptr), 32);
    EXPECT_LE(open(""), 32);
    EXPECT_LE(open("x", "print"), 32);
}
