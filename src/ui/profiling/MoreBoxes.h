#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/Files.h"
#include "app/Operator.h"
#include "boxes/second/SecondLook.h"
#include "imaging/PageScreen.h"
#include "profiles/BoxEditor.h"
#include "profiles/OpenProfile.h"
#include "ui/commands/AppState.h"
#include "ui/lists/CandidatePane.h"

namespace tavrene::ui {

/// What the second look acts on; everything must outlive it.
struct MoreBoxesContext {
    const app::Files& files;
    app::Operator& person;
    const commands::AppState& state;
    const profiles::OpenProfile& profile;
    profiles::BoxEditor& editor;
    imaging::PageScreen& page;
    CandidatePane& pane;
};

/// The command `FindMoreBoxes`: looks a second time at the page of the open profile, shows what may be boxes
/// as dotted outlines and as rows, and adds what the person takes. The rectangles of candidates are in groups
/// below 0, where no box has its number.
class MoreBoxes {
  public:
    /// `take` is handed what the person does in the list.
    MoreBoxes(const MoreBoxesContext& context, const std::function<void(const std::function<void()>&)>& take);

    void Find();

    /// Looks without showing anything; the sentence that offers what is there, or nothing.
    std::string Offer();

    /// A rectangle of the page was clicked; false when it is not one of a candidate.
    bool Clicked(int group);

    /// Takes the candidates off the screen; false when none were shown.
    bool Close();

    /// Closes when another profile, or none, has come to the desk.
    void Update();

  private:
    struct Shown {
        int id;
        profiles::OmrBox box;
        bool isUnlikely;
    };

    void PointAt(int id);
    bool Look();
    void Show();
    void Take(int id);
    void TakeAll();
    void HideRects();
    void AddShown(const std::vector<boxes::BoxRect>& boxes, bool unlikely);
    std::string DeskKey() const;

    MoreBoxesContext context_;
    boxes::SecondLook look_;
    int pageHeight_ = 0;
    std::vector<Shown> shown_;
    bool unlikelyLeft_ = false;  ///< Shapes that look like print can be shown, but are not.
    std::string desk_;  ///< What stood at the desk when the candidates were found; empty while closed.
};

}  // namespace tavrene::ui
