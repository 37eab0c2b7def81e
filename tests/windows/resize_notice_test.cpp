#include "windows/resize_notice.h"

#include <gtest/gtest.h>

namespace vigrel::testing {
namespace {

class ResizeNotice : public ::testing::Test {
  protected:
    int m_Told = 0;
    std::function<void()> m_Listener = [this] { ++m_Told; };
    cResizeNotice m_Notice{m_Listener};
};

TEST_F(ResizeNotice, ARepeatedResizeIsToldEachTime) {
    m_Notice.Resized();
    m_Notice.Resized();
    EXPECT_EQ(m_Told, 2);
}

TEST_F(ResizeNotice, HeldItIsToldOnceAtTheEnd) {
    m_Notice.Hold();
    m_Notice.Resized();
    m_Notice.Resized();
    EXPECT_EQ(m_Notice.State(), cResizeNotice::eState::Kept);
    EXPECT_EQ(m_Told, 0);
    m_Notice.Release();
    EXPECT_EQ(m_Told, 1);
    EXPECT_EQ(m_Notice.State(), cResizeNotice::eState::Telling);
}

TEST_F(ResizeNotice, WithoutAResizeTheEndTellsNothing) {
    m_Notice.Hold();
    m_Notice.Release();
    EXPECT_EQ(m_Told, 0);
}

TEST_F(ResizeNotice, HoldingAgainForgetsNothing) {
    m_Notice.Hold();
    m_Notice.Resized();
    m_Notice.Hold();
    m_Notice.Release();
    EXPECT_EQ(m_Told, 1);
}

TEST_F(ResizeNotice, ALateListenerIsTold) {
    m_Listener = nullptr;
    m_Notice.Resized();
    m_Listener = [this] { m_Told += 10; };
    m_Notice.Resized();
    EXPECT_EQ(m_Told, 10);
}

}  // namespace
}  // namespace vigrel::testing
