#include "desktop/binding/listening.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace quorrin {
namespace {

struct Hooked : testing::Test {
    std::function<void()> hook;
    std::string heard;
    Listening listener(const std::string& word) {
        return Listening(hook, [this, word] { heard += word + " "; });
    }
};

TEST_F(Hooked, SeveralListenersHearInTheOrderInWhichTheyCame) {
    const Listening one = listener("one");
    const Listening two = listener("two");
    hook();
    EXPECT_EQ(heard, "one two ");
}

TEST_F(Hooked, WhatStoodInTheHookBeforeIsCalledFirst) {
    hook = [this] { heard += "before "; };
    const Listening one = listener("one");
    hook();
    EXPECT_EQ(heard, "before one ");
}

TEST_F(Hooked, AListenerThatHasGoneHearsNothing) {
    const Listening one = listener("one");
    { const Listening two = listener("two"); }
    hook();
    EXPECT_EQ(heard, "one ");
}

TEST_F(Hooked, AListenerMayGoWhileTheHookIsBeingCalled) {
    std::optional<Listening> two;
    const Listening one(hook, [&] { two.reset(); });
    two.emplace(listener("two"));
    hook();
    EXPECT_EQ(heard, "");
}

TEST_F(Hooked, AListenerThatGoesByItsOwnCallIsHeardToItsEnd) {
    std::optional<Listening> one;
    one.emplace(hook, [&, words = std::string("still here")] {
        one.reset();
        heard = words;
    });
    hook();
    EXPECT_EQ(heard, "still here");
}

TEST_F(Hooked, TheHookMayGoBeforeItsListeners) {
    std::optional<std::function<void()>> brief(std::in_place);
    const Listening one(*brief, [] {});
    brief.reset();
}

TEST_F(Hooked, AListenerThatHasMovedIsHeardOnce) {
    Listening one = listener("one");
    const Listening moved = std::move(one);
    hook();
    EXPECT_EQ(heard, "one ");
}

}  // namespace
}  // namespace quorrin
