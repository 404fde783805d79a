#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace tavrene::app {

/// The panels of the status bar.
enum class Panel { File, Message, ElapsedTime, Progress };

enum class Answer { Yes, No, Cancel };

/// Something that the person should read and that stops nothing.
struct Notice {
    std::string text;                ///< Whole sentences.
    std::string button = {};         ///< What can be done about it; empty for nothing.
    std::function<void()> act = {};  ///< Called when the button is pressed.
    std::string topic = {};          ///< What stays the same while the text changes; empty for the text.
};

/// The one door to the person at the machine. Texts are UTF-8.
class Operator {
  public:
    virtual ~Operator() = default;

    /// A message box with an OK button; returns when it is closed. An empty title stands for the
    /// application's.
    virtual void ShowMessage(std::string_view title, std::string_view text) = 0;

    /// Tells of one file without stopping the work: all such messages stand in one box beside the window, and
    /// further ones are added to it as lines while it is open. One message a file.
    virtual void ReportFile(std::string_view fileName, std::string_view text) = 0;

    /// Questions in a message box that carries the application's title. `preset` is the answer that Enter
    /// gives: a safe one wherever Yes destroys or rewrites something.
    virtual Answer AskYesNo(std::string_view text, Answer preset) = 0;
    virtual Answer AskYesNoCancel(std::string_view text, Answer preset) = 0;

    /// Shows notices over the page, whole, until the person closes them or others take their place; none take
    /// them away.
    virtual void ShowNotices(std::span<const Notice> notices) = 0;

    /// The same for what stands about the work at hand, whatever else is told. They are told again and again;
    /// one that the person has closed stays closed as long as its topic is among them.
    virtual void ShowStandingNotices(std::span<const Notice> notices) = 0;

    /// Puts a text into a panel; it can be read at once, also while a long operation runs.
    virtual void SetPanel(Panel panel, std::string_view text) = 0;

    /// The progress bar runs from 0 to `last`; setting the range puts it to 0.
    virtual void SetProgressRange(int last) = 0;
    virtual void SetProgress(int value) = 0;

    /// Lets the screen take pending events (a click on `Stop`, repainting). Called between the files of a run
    /// and by computations that watch for Escape alone.
    virtual void RunPendingEvents() = 0;
};

}  // namespace tavrene::app
