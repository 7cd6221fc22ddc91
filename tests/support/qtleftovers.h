#pragma once

#include <gtest/gtest.h>

/// Proves after every test that it left nothing behind: no visible window, no field that is still
/// counted, no shared editor, no warning that it expected in vain, no changed text encoding.
class CQtLeftovers : public testing::EmptyTestEventListener
{
    void OnTestEnd(const testing::TestInfo& test) override;
};
