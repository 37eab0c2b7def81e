#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/failure.h"
#include "platform/windows.h"
#include "support/transcript.h"

namespace vigrel::testing {

// The open windows in the order in which they were opened. A fake window enters at its first Show or when a
// test adds it, and leaves when it is closed.
class cFakeWindowList : public cWindowList {
  public:
    std::vector<cWindow*> OpenWindows() override { return m_Windows; }
    void Add(cWindow& window) {
        if (std::find(m_Windows.begin(), m_Windows.end(), &window) == m_Windows.end()) {
            m_Windows.push_back(&window);
        }
    }
    void Remove(cWindow& window) { std::erase(m_Windows, &window); }

    std::vector<cWindow*> m_Windows;
};

// 1280 by 1024 pixels at 100 % scale.
class cFakeScreen : public cScreen {
  public:
    double Width() const override { return m_Width; }
    double Height() const override { return m_Height; }
    double TwipsPerPixelX() const override { return m_TwipsPerPixel; }
    double TwipsPerPixelY() const override { return m_TwipsPerPixel; }

    double m_Width = 1280 * 15, m_Height = 1024 * 15, m_TwipsPerPixel = 15;
};

// A window without a screen, of any kind of window port. A change of its state or size brings OnResize at
// once when it isn't hidden.
template <class Port>
class cFakeWindowOf : public Port {
  public:
    explicit cFakeWindowOf(std::string name = "Vigrel_Receiver_Main", cTranscript* transcript = nullptr,
                           cFakeWindowList* list = nullptr)
        : m_Name(std::move(name)), m_NameInTranscript(m_Name), m_Transcript(transcript), m_List(list) {}
    ~cFakeWindowOf() override {
        if (m_List) m_List->Remove(*this);
    }

    std::string Name() const override { return m_Name; }
    std::string Caption() const override { return m_Caption; }
    void SetCaption(std::string_view caption) override {
        m_Caption = caption;
        Note("caption \"" + m_Caption + "\"");
    }
    eWindowState State() const override { return m_State; }
    void SetState(eWindowState state) override {
        if (state == m_State) return;
        m_State = state;
        constexpr const char* kNames[] = {"normal", "minimised", "maximised"};
        Note(kNames[static_cast<int>(state)]);
        Resized();
    }
    double Left() const override { return m_Left; }
    double Top() const override { return m_Top; }
    double Width() const override { return m_Width; }
    double Height() const override { return m_Height; }
    void SetLeft(double twips) override { m_Left = twips; }
    void SetTop(double twips) override { m_Top = twips; }
    void SetWidth(double twips) override {
        m_Width = twips;
        Resized();
    }
    void SetHeight(double twips) override {
        m_Height = twips;
        Resized();
    }
    double InnerWidth() const override { return m_Width - m_FrameWidth; }
    double InnerHeight() const override { return m_Height - m_FrameHeight; }

    bool Visible() const override { return m_Visible; }
    void Show() override {
        if (m_List) m_List->Add(*this);
        m_Visible = true;
        Note("show");
    }
    void Hide() override {
        m_Visible = false;
        Note("hide");
    }
    void SetFocus() override {
        if (!m_Visible || m_State == eWindowState::Minimised || m_RefusesFocus) {
            throw cFailure(eFailure::InvalidCall, m_Name + ": a window that doesn't show takes no focus");
        }
        Note("focus");
    }
    void SetTopMost(bool topMost) override {
        m_TopMost = topMost;
        Note(topMost ? "topmost" : "not topmost");
    }
    void Close() override {
        if (!CloseFor(eCloseReason::Code)) throw cFailure(eFailure::InvalidCall, m_Name + ": not closed");
    }

    bool CloseFor(eCloseReason reason) override {
        if (this->OnQueryUnload && !this->OnQueryUnload(reason)) return false;
        if (this->OnUnload) this->OnUnload();
        m_Visible = false;
        m_Open = false;
        if (m_List) m_List->Remove(*this);
        Note("closed");
        return true;
    }

    std::string m_Name, m_NameInTranscript, m_Caption;
    eWindowState m_State = eWindowState::Normal;
    double m_Left = 0, m_Top = 0, m_Width = 8000, m_Height = 5000;
    double m_FrameWidth = 120, m_FrameHeight = 510;  // what the frame takes of width and height
    bool m_Visible = false, m_TopMost = false, m_Open = true;
    bool m_RefusesFocus = false;  // as a window does that its desktop has not brought back yet

  protected:
    void Note(const std::string& step) {
        if (m_Transcript) m_Transcript->Add(m_NameInTranscript + ": " + step);
    }

  private:
    void Resized() {
        if (m_Visible && this->OnResize) this->OnResize();
    }
    cTranscript* m_Transcript;
    cFakeWindowList* m_List;
};

using cFakeWindow = cFakeWindowOf<cWindow>;

// Gives the answers that a test has lined up; without one, the answer of a box that is closed unanswered.
class cFakeMessageBox : public cMessageBox {
  public:
    explicit cFakeMessageBox(cTranscript* transcript = nullptr) : m_Transcript(transcript) {}
    void ShowForAWhile(std::string_view text, eMessageIcon icon) override {
        Show("for a while: " + std::string(text), icon, eMessageButtons::Ok);
    }
    eMessageAnswer Show(std::string_view text, eMessageIcon icon, eMessageButtons buttons) override {
        constexpr const char* kIcons[] = {"warning", "stop", "question"};
        const bool yesNo = buttons == eMessageButtons::YesNo;
        const std::string kind = std::string(kIcons[static_cast<int>(icon)]) + (yesNo ? ", yes/no" : ", ok");
        m_Shown.push_back(kind + ": " + std::string(text));
        if (m_Transcript) m_Transcript->Add("message box (" + kind + "): " + std::string(text));
        if (m_OnShow) m_OnShow();
        if (m_Answers.empty()) return yesNo ? eMessageAnswer::No : eMessageAnswer::Ok;
        const eMessageAnswer answer = m_Answers.front();
        m_Answers.pop_front();
        return answer;
    }

    std::deque<eMessageAnswer> m_Answers;
    std::vector<std::string> m_Shown;  // "question, yes/no: text"
    std::function<void()> m_OnShow;    // while the box stands

  private:
    cTranscript* m_Transcript;
};

class cFakeClipboard : public cClipboard {
  public:
    void Clear() override { m_Text.clear(); }
    void SetText(std::string_view text) override {
        m_WasClear = m_Text.empty();
        m_Text = text;
    }
    std::string m_Text;
    bool m_WasClear = false;  // when the last text came
};

class cFakeBeeper : public cBeeper {
  public:
    explicit cFakeBeeper(cTranscript* transcript = nullptr) : m_Transcript(transcript) {}
    void Beep() override {
        ++m_Beeps;
        if (m_Transcript) m_Transcript->Add("beep");
    }
    int m_Beeps = 0;

  private:
    cTranscript* m_Transcript;
};

// Every entry is visible and enabled until told otherwise.
class cFakeMenus : public cMenus {
  public:
    struct cEntry {
        std::string caption;
        bool enabled = true, visible = true;
    };
    void SetCaption(std::string_view entry, std::string_view caption) override {
        m_Entries[std::string(entry)].caption = caption;
    }
    void SetEnabled(std::string_view entry, bool enabled) override {
        m_Entries[std::string(entry)].enabled = enabled;
    }
    void SetVisible(std::string_view entry, bool visible) override {
        m_Entries[std::string(entry)].visible = visible;
    }
    const cEntry& operator[](std::string_view entry) { return m_Entries[std::string(entry)]; }

    std::map<std::string, cEntry, std::less<>> m_Entries;
};

}  // namespace vigrel::testing
