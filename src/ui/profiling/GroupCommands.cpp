#include "ui/profiling/GroupCommands.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

#include "profiles/GroupEdits.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {

using commands::Command;
using profiles::BoxGroup;
using profiles::OmrBox;

namespace {

constexpr std::string_view kGroupFrames = "GroupFrames";

constexpr std::pair<profiles::Takes, const char*> kTakes[] = {
    {profiles::Takes::One, QT_TRANSLATE_NOOP("GroupCommands", "one mark")},
    {profiles::Takes::AnyNumber, QT_TRANSLATE_NOOP("GroupCommands", "any number of marks")},
    {profiles::Takes::AtLeastOne, QT_TRANSLATE_NOOP("GroupCommands", "at least one mark")}};

QString TextOf(profiles::Takes takes) {
    for (const auto& [known, text] : kTakes)
        if (known == takes)
            return Tr("GroupCommands", text);
    return {};
}

}  // namespace

GroupCommands::GroupCommands(commands::CommandGate& gate, app::SettingsStore& store,
                             const profiles::OpenProfile& profile, profiles::BoxEditor& editor,
                             ImageView& view)
    : profile_(profile),
      editor_(editor),
      view_(view),
      showsFrames_(app::ReadWindowFlag(store, kGroupFrames, false)) {
    gate.SetHandler(
        Command::GroupBoxes, [this] { GroupSelected(); }, [this] { return profile_.Selected.HasSeveral(); });
    gate.SetHandler(
        Command::UngroupBoxes, [this] { Set(profiles::WithoutBoxes(Groups(), SelectedNames())); },
        [this] { return !profile_.Selected.IsEmpty(); });
    gate.SetHandler(Command::GroupByRows, [this] {
        const bool isSome = profile_.Selected.HasSeveral();
        const std::vector<BoxGroup> rows = profiles::GroupsByRow(
            profile_.BoxList, isSome ? profile_.Selected.Numbers() : profiles::KeptNumbers(profile_.BoxList));
        std::vector<BoxGroup> groups = isSome ? Groups() : std::vector<BoxGroup>();
        for (const BoxGroup& row : rows)
            groups = profiles::WithGroup(std::move(groups), row);
        Set(std::move(groups));
    });
    gate.SetHandler(Command::GroupByNames, [this] {
        editor_.SetGroups(std::nullopt);
        showsFrames_ = true;
    });
    gate.SetHandler(Command::GroupFrames, [this, &store] {
        showsFrames_ = !showsFrames_;
        app::WriteWindowFlag(store, kGroupFrames, showsFrames_);
    });
}

// What was done is to be seen.
void GroupCommands::Set(std::vector<BoxGroup> groups) {
    editor_.SetGroups(std::move(groups));
    showsFrames_ = true;
}

std::vector<BoxGroup> GroupCommands::Groups() const {
    if (profile_.Groups)
        return *profile_.Groups;
    std::vector<std::string> names;
    for (const OmrBox& box : profile_.BoxList)
        if (box.Checked)
            names.push_back(box.Name);
    return profiles::GroupsByName(names);
}

std::vector<std::string> GroupCommands::SelectedNames() const {
    std::vector<std::string> names;
    for (const int number : profile_.Selected.Numbers())
        names.push_back(profile_.BoxList[static_cast<std::size_t>(number) - 1].Name);
    return names;
}

void GroupCommands::GroupSelected() {
    if (const std::optional<BoxGroup> group = AskGroup(SelectedNames()))
        Set(profiles::WithGroup(Groups(), *group));
}

std::optional<BoxGroup> GroupCommands::AskGroup(std::vector<std::string> names) const {
    QDialog dialog(view_.window());
    dialog.setObjectName("frmGroup");
    dialog.setWindowTitle(Tr("GroupCommands", "Group of Boxes"));
    auto* const form = new QFormLayout(&dialog);
    // Boxes that are a group already are to keep what was said of it.
    const std::vector<BoxGroup> groups = Groups();
    const auto same = std::ranges::find_if(
        groups, [&](const BoxGroup& group) { return std::ranges::is_permutation(group.Boxes, names); });
    const bool isKnown = same != groups.end();
    auto* const name = new QLineEdit(ToQt(isKnown ? same->Name : profiles::NameForGroup(names)));
    name->setObjectName("txtGroup");
    auto* const takes = new QComboBox;
    takes->setObjectName("cboTakes");
    for (const auto& [known, text] : kTakes)
        takes->addItem(Tr("GroupCommands", text));
    if (isKnown)
        takes->setCurrentText(TextOf(same->Marks));
    form->addRow(Tr("GroupCommands", "&Name"), name);
    form->addRow(Tr("GroupCommands", "The question &takes"), takes);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    form->addRow(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    name->selectAll();
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return BoxGroup{FromQt(name->text()), std::move(names), kTakes[takes->currentIndex()].first};
}

void GroupCommands::Update() {
    std::vector<GroupFrame> frames;
    if (showsFrames_ && profile_.IsOpen) {
        std::map<std::string, QRectF> places;
        for (const int number : profiles::KeptNumbers(profile_.BoxList))
            places[profile_.BoxList[static_cast<std::size_t>(number) - 1].Name] |=
                view_.Boxes().PlaceOf(number);
        for (const BoxGroup& group : Groups()) {
            GroupFrame frame{{}, ToQt(group.Name) + ": " + TextOf(group.Marks)};
            for (const std::string& name : group.Boxes)
                frame.place |= places[name];
            // One whose boxes have all gone has no place.
            if (!frame.place.isNull())
                frames.push_back(std::move(frame));
        }
    }
    view_.Boxes().ShowGroups(std::move(frames));
}

}  // namespace tavrene::ui
