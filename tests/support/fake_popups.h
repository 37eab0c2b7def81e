#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common/failure.h"
#include "common/numbers.h"
#include "platform/popup_window.h"
#include "support/fake_windows.h"

namespace vigrel::testing {

// The stacking order of fake windows, the uppermost first. A window enters at the top of its layer.
class cFakeStack {
  public:
    void Raise(const cWindow& window) {
        Remove(window);
        m_Windows.insert(m_Windows.begin(), &window);
    }
    void PlaceBehind(const cWindow& window, const cWindow& other) {
        Remove(window);
        const auto found = std::find(m_Windows.begin(), m_Windows.end(), &other);
        m_Windows.insert(found == m_Windows.end() ? found : found + 1, &window);
    }
    void Remove(const cWindow& window) { std::erase(m_Windows, &window); }

    std::vector<const cWindow*> m_Windows;
};

// Notes every step that a popup is told, lengths in twips and colours as decimal numbers.
class cFakePopupWindow : public cFakeWindowOf<cPopupWindow> {
  public:
    struct cPicture {
        bool visible = false;
        std::int32_t backColour = 0xF0F0F0;
    };

    cFakePopupWindow(int number, cTranscript& transcript, cFakeWindowList& list, cFakeStack& stack)
        : cFakeWindowOf(std::string(kPopupKind), &transcript, &list), m_Stack(stack) {
        m_NameInTranscript = "popup " + std::to_string(number);
        m_Left = 1500 + 300 * number;
        m_Top = 2000 + 300 * number;
        m_Width = 6768 + m_FrameWidth;
        m_Height = 1260 + m_FrameHeight;
        list.Add(*this);
    }
    ~cFakePopupWindow() override { m_Stack.Remove(*this); }

    void SetLeft(double twips) override { Place("left", m_Left, twips); }
    void SetTop(double twips) override { Place("top", m_Top, twips); }
    void SetWidth(double twips) override {
        Note("width " + NumberText(twips));
        cFakeWindowOf::SetWidth(twips);
    }
    void SetHeight(double twips) override {
        Note("height " + NumberText(twips));
        cFakeWindowOf::SetHeight(twips);
    }
    void Show() override {
        if (!m_Visible) m_Stack.Raise(*this);
        cFakeWindowOf::Show();
    }
    void SetTopMost(bool topMost) override {
        if (topMost) m_Stack.Raise(*this);
        cFakeWindowOf::SetTopMost(topMost);
    }
    void Close() override {
        if (m_RefuseClose) {
            Note("close refused");
            throw cFailure(eFailure::InvalidCall, "close refused");
        }
        cFakeWindowOf::Close();
    }

    void SetForeColour(std::int32_t colour) override { Note("fore colour " + std::to_string(colour)); }
    void SetBackColour(std::int32_t colour) override { Note("back colour " + std::to_string(colour)); }
    void SetLabelText(std::string_view text) override {
        m_LabelText = text;
        Note("label \"" + m_LabelText + "\"");
    }
    void SetLabelForeColour(std::int32_t colour) override {
        Note("label fore colour " + std::to_string(colour));
    }
    void SetLabelBackColour(std::int32_t colour) override {
        Note("label back colour " + std::to_string(colour));
    }
    void SetLabelFont(std::string_view name, double points) override {
        Note("label font " + std::string(name) + " " + NumberText(points));
    }
    void SetLabelFontStyle(bool bold, bool italic) override {
        Note(std::string("label font style") + (bold ? " bold" : "") + (italic ? " italic" : "") +
             (bold || italic ? "" : " plain"));
    }
    void SetLabelLeft(double twips) override { PlaceLabel("left", m_LabelLeft, twips); }
    void SetLabelTop(double twips) override { PlaceLabel("top", m_LabelTop, twips); }
    void SetLabelWidth(double twips) override { SizeLabel("width", m_LabelWidth, twips); }
    void SetLabelHeight(double twips) override { SizeLabel("height", m_LabelHeight, twips); }
    void SetPictureBackColour(int picture, std::int32_t colour) override {
        Picture(picture).backColour = colour;
        Note("picture " + std::to_string(picture) + " back colour " + std::to_string(colour));
    }
    void SetPictureVisible(int picture, bool visible) override {
        Picture(picture).visible = visible;
        Note("picture " + std::to_string(picture) + (visible ? " visible" : " hidden"));
    }
    double PictureLeft(int picture) const override {
        Check(picture);
        return 90;
    }
    double PictureWidth(int picture) const override {
        Check(picture);
        return 384;
    }
    void PlaceBehind(cPopupWindow& other) override {
        m_Stack.PlaceBehind(*this, other);
        Note("behind " + dynamic_cast<cFakePopupWindow&>(other).m_NameInTranscript);
    }

    std::string m_LabelText;
    double m_LabelLeft = 720, m_LabelTop = 0, m_LabelWidth = 6015, m_LabelHeight = 1170;
    cPicture m_Pictures[kPictures];
    bool m_RefuseClose = false;

  private:
    void Place(const char* what, double& value, double twips) {
        value = twips;
        Note(std::string(what) + " " + NumberText(twips));
    }
    void PlaceLabel(const char* what, double& value, double twips) {
        Place((std::string("label ") + what).c_str(), value, twips);
    }
    void SizeLabel(const char* what, double& value, double twips) {
        if (twips < 0) throw cFailure(eFailure::InvalidCall, std::string("negative ") + what);
        PlaceLabel(what, value, twips);
    }
    static void Check(int picture) {
        if (picture < 0 || picture >= kPictures) throw cFailure(eFailure::OutOfBounds, "no such picture");
    }
    cPicture& Picture(int picture) {
        Check(picture);
        return m_Pictures[picture];
    }
    cFakeStack& m_Stack;
};

// Popups numbered from 1 in the order in which they are made.
class cFakePopupMaker : public cPopupMaker {
  public:
    cFakePopupMaker(cTranscript& transcript, cFakeWindowList& list)
        : m_Transcript(transcript), m_List(list) {}
    cPopupWindow& MakePopup() override {
        if (m_FailNext) throw cFailure(eFailure::InvalidCall, "no window");
        const int number = static_cast<int>(m_Popups.size()) + 1;
        m_Popups.push_back(std::make_unique<cFakePopupWindow>(number, m_Transcript, m_List, m_Stack));
        return *m_Popups.back();
    }
    // By number, closed or not.
    cFakePopupWindow& operator[](int number) { return *m_Popups.at(static_cast<std::size_t>(number) - 1); }
    // The numbers of the popups that show: "2 3".
    std::string Visible() const {
        return Numbers([](const cFakePopupWindow& popup) { return popup.m_Visible; });
    }
    std::string Open() const {
        return Numbers([](const cFakePopupWindow& popup) { return popup.m_Open; });
    }
    // The popups that show, from the uppermost to the lowest.
    std::string Stacked() const {
        std::string text;
        for (const cWindow* window : m_Stack.m_Windows) {
            for (std::size_t i = 0; i < m_Popups.size(); ++i) {
                if (m_Popups[i].get() == window && m_Popups[i]->m_Visible) Append(text, i + 1);
            }
        }
        return text;
    }

    // For tests that open more popups than they could keep: those that are left count from 1 again.
    int ForgetClosed() {
        std::erase_if(m_Popups, [](const auto& popup) { return !popup->m_Open; });
        return static_cast<int>(m_Popups.size());
    }

    cFakeStack m_Stack;
    bool m_FailNext = false;

  private:
    static void Append(std::string& text, std::size_t number) {
        text += (text.empty() ? "" : " ") + std::to_string(number);
    }
    template <class Wanted>
    std::string Numbers(Wanted wanted) const {
        std::string text;
        for (std::size_t i = 0; i < m_Popups.size(); ++i) {
            if (wanted(*m_Popups[i])) Append(text, i + 1);
        }
        return text;
    }
    cTranscript& m_Transcript;
    cFakeWindowList& m_List;
    std::vector<std::unique_ptr<cFakePopupWindow>> m_Popups;
};

}  // namespace vigrel::testing
