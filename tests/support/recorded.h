#ifndef SUPPORT_RECORDED_H
#define SUPPORT_RECORDED_H

#include <string>

#include <gtest/gtest.h>

#include "desk.h"
#include "recorder.h"

// What tests of controls stand on: a fresh recorder and desk for each, and a failure for each breach of the
// contract, among them a bracket left open at the end.
class Recorded : public testing::Test {
  protected:
    void SetUp() override {
        recorder::reset();
        desk::reset();
        recorder::on_breach([](const char* what) { ADD_FAILURE() << what; });
        recorder::window();
        recorder::context();
    }
    void TearDown() override { EXPECT_FALSE(recorder::open()) << "a bracket is left open"; }
};

// The lines that the action leaves behind. What stood in the log before is forgotten.
template <typename Action>
std::string recorded(unsigned kinds, Action action) {
    recorder::clear();
    action();
    const std::string lines = recorder::text(kinds);
    recorder::clear();
    return lines;
}
template <typename Action>
std::string painted(Action action) {
    return recorded(recorder::kDraw, action);
}
template <typename Action>
std::string everything(Action action) {
    return recorded(recorder::kDraw | recorder::kReport, action);
}

// The lines of a trace, as the library reports them.
inline void trace_in(const std::string& operation, const std::string& name) {
    recorder::note(recorder::kReport, ">>> in  Lib_Brask: " + operation + "(" + name + ")", 0x90000029);
}
inline void trace_out(const std::string& operation, const std::string& tag) {
    recorder::note(recorder::kReport, "<<< out Lib_Brask: " + operation + "(" + tag + ")", 0x90000029);
}

#endif
