#include "ui/profiling/CopyCommands.h"

#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGuiApplication>
#include <QMimeData>
#include <QSpinBox>
#include <algorithm>
#include <variant>

#include "app/Counted.h"
#include "imaging/PageReader.h"
#include "profiles/BoxArrangement.h"
#include "profiles/BoxPlace.h"
#include "profiles/CopyPlaces.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {

using commands::Command;
using imaging::PageRect;
using profiles::OmrBox;

namespace {

constexpr int kMostLines = 200;

constexpr std::string_view kSnapToPrint = "SnapToPrint";
constexpr const char* kBoxesFormat = "application/x-tavrene-boxes";

PageRect ToPageRect(const QRectF& rect) {
    return {rect.left(), rect.top(), rect.width(), rect.height()};
}

QSpinBox* Counter(const char* name, const QString& label, int value) {
    auto* const counter = new QSpinBox;
    counter->setObjectName(name);
    counter->setAccessibleName(label);
    counter->setRange(1, kMostLines);
    counter->setValue(value);
    return counter;
}

}  // namespace

CopyCommands::CopyCommands(commands::CommandGate& gate, const app::Files& files, app::Operator& person,
                           app::SettingsStore& store, const profiles::OpenProfile& profile,
                           profiles::BoxEditor& editor, ImageView& view)
    : files_(files),
      person_(person),
      profile_(profile),
      editor_(editor),
      view_(view),
      snaps_(app::ReadWindowFlag(store, kSnapToPrint, false)) {
    gate.SetHandler(Command::DrawGrid, [this, &gate] { DrawGrid(gate); });
    gate.SetHandler(Command::SnapToPrint, [this, &store] {
        snaps_ = !snaps_;
        app::WriteWindowFlag(store, kSnapToPrint, snaps_);
    });
    editor.SetPlacing([this](const PageRect& place) { return Placed(place); });
    ConnectCopies(gate);
}

void CopyCommands::ConnectCopies(commands::CommandGate& gate) {
    const auto hasSelected = [this] { return !profile_.Selected.IsEmpty(); };
    gate.SetHandler(
        Command::CopyBoxes, [this] { Copy(); }, hasSelected);
    gate.SetHandler(
        Command::PasteBoxes, [this] { Paste(); }, [this] { return !copied_.empty(); });
    gate.SetHandler(
        Command::DuplicateBoxes,
        [this] {
            const std::vector<OmrBox> boxes = SelectedBoxes();
            Append(boxes, profiles::WayDown(profile_.BoxList, boxes, Print()));
        },
        hasSelected);
}

// What is copied in another program afterwards takes the clipboard from them. There, their names are a column
// of cells.
void CopyCommands::Copy() {
    copied_ = SelectedBoxes();
    QStringList names;
    for (const OmrBox& box : copied_)
        names += ToQt(box.Name);
    auto* const data = new QMimeData;
    data->setText(names.join('\n'));
    data->setData(kBoxesFormat, "1");
    QGuiApplication::clipboard()->setMimeData(data);
    person_.SetPanel(app::Panel::Message, app::Counted(copied_.size(), "box", "boxes") +
                                              " copied; Ctrl+V adds " +
                                              (copied_.size() == 1 ? "it" : "them") + " to a profile.");
}

bool CopyCommands::AreBoxesOnClipboard() {
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr && data->hasFormat(kBoxesFormat);
}

// In another profile they come to the place where they were, where boxes are to the next free one.
void CopyCommands::Paste() {
    Append(copied_, profiles::WayToFreePlace(profile_.BoxList, copied_));
}

std::vector<OmrBox> CopyCommands::SelectedBoxes() const {
    std::vector<OmrBox> boxes;
    for (const int number : profile_.Selected.Numbers())
        boxes.push_back(profile_.BoxList[static_cast<std::size_t>(number) - 1]);
    return boxes;
}

void CopyCommands::MoveBy(int dx, int dy) {
    const std::vector<OmrBox> boxes = SelectedBoxes();
    if (boxes.empty())
        return;
    const profiles::PixelWay way = Placed(boxes.front(), {dx, dy});
    editor_.Nudge(way.dx, way.dy);
}

void CopyCommands::CopyBy(int dx, int dy) {
    Append(SelectedBoxes(), {dx, dy});
}

// Several keep their distances: they go as a whole where the first one finds an outline.
profiles::PixelWay CopyCommands::Placed(const OmrBox& first, profiles::PixelWay way) {
    PageRect place = profiles::PlaceOf(first);
    place.left += way.dx;
    place.top += way.dy;
    const PageRect printed = Placed(place);
    return {way.dx + static_cast<int>(printed.left - place.left),
            way.dy + static_cast<int>(printed.top - place.top)};
}

// Copies that the edge of the page holds back would lie over what is there.
void CopyCommands::Append(const std::vector<OmrBox>& copied, profiles::PixelWay wanted) {
    if (copied.empty())
        return;
    const std::optional<profiles::PixelWay> way =
        profiles::WayOfCopies(Placed(copied.front(), wanted), profile_.BoxList, copied, ExtentOf(profile_));
    if (!way) {
        person_.SetPanel(app::Panel::Message, "There is no room on the page for the copies there.");
        return;
    }
    std::vector<OmrBox> after = profile_.BoxList;
    const std::vector<int> numbers = profiles::AppendCopies(after, copied);
    const profiles::BoxSelection selected(numbers, numbers.front());
    profiles::Move(after, selected, way->dx, way->dy, ExtentOf(profile_));
    if (editor_.Change([&](std::vector<OmrBox>& boxes) { boxes = after; }, selected))
        person_.SetPanel(app::Panel::Message, app::Counted(copied.size(), "box", "boxes") + " added.");
}

bool CopyCommands::KeepsFree() const {
    return view_.HeldKeys().testFlag(Qt::AltModifier);
}

// Where a box goes that the person puts at a place.
PageRect CopyCommands::Placed(const PageRect& place) {
    return snaps_ && !KeepsFree() ? profiles::InPrint(Print(), place) : place;
}

void CopyCommands::DrawGrid(commands::CommandGate& gate) {
    person_.SetPanel(app::Panel::Message,
                     "Draw the first box at the upper left, then draw or click the last at the lower right.");
    // Escape gives it up there, and would close the window elsewhere.
    view_.setFocus();
    view_.Boxes().DrawGrid([this, &gate](const QRectF& first, const QRectF& last) {
        gate.Take(Command::EditBoxes, [&] { AddGrid(ToPageRect(first), ToPageRect(last)); });
    });
}

void CopyCommands::AddGrid(const PageRect& drawnFirst, const PageRect& drawnLast) {
    const auto placed = [this, isFree = KeepsFree()](const PageRect& place) {
        return isFree ? place : profiles::InPrint(Print(), place);
    };
    const PageRect first = placed(drawnFirst);
    const PageRect last = placed(drawnLast);
    const profiles::GridShape guess =
        Print() == nullptr ? profiles::GridShape{2, 2} : profiles::ShapeInPrint(*Print(), first, last);
    const std::optional<profiles::GridShape> shape = AskShape(guess);
    if (!shape)
        return;
    std::vector<OmrBox> added;
    for (const PageRect& place : profiles::PlacesOfGrid(first, last, *shape)) {
        OmrBox box;
        profiles::PutAt(box, profiles::OntoPage(placed(place), ExtentOf(profile_)));
        if (!profiles::IsTaken(profile_.BoxList, profiles::PlaceOf(box)))
            added.push_back(box);
    }
    if (!editor_.AddBoxes(added)) {
        person_.SetPanel(app::Panel::Message, "All boxes of this grid are there already.");
        return;
    }
    std::vector<int> numbers = profiles::KeptNumbers(profile_.BoxList);
    std::erase_if(numbers, [&](int number) {
        return std::none_of(added.begin(), added.end(), [&](const OmrBox& box) {
            return profiles::IsSamePlace(box, profile_.BoxList[static_cast<std::size_t>(number) - 1]);
        });
    });
    editor_.Select({numbers, profile_.Selected.Current()});
    person_.SetPanel(app::Panel::Message, std::to_string(added.size()) + " boxes added.");
}

std::optional<profiles::GridShape> CopyCommands::AskShape(const profiles::GridShape& guess) const {
    QDialog dialog(view_.window());
    dialog.setObjectName("frmGrid");
    dialog.setWindowTitle(Tr("CopyCommands", "Grid of Boxes"));
    auto* const form = new QFormLayout(&dialog);
    auto* const rows = Counter("numRows", Tr("CopyCommands", "Rows"), guess.rows);
    auto* const columns = Counter("numColumns", Tr("CopyCommands", "Columns"), guess.columns);
    form->addRow(Tr("CopyCommands", "&Rows"), rows);
    form->addRow(Tr("CopyCommands", "&Columns"), columns);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    form->addRow(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    rows->selectAll();
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return profiles::GridShape{rows->value(), columns->value()};
}

// Nothing where the specimen cannot be read.
const imaging::WorkGrid* CopyCommands::Print() {
    if (printOf_ != profile_.Image) {
        printOf_ = profile_.Image;
        print_.reset();
        auto read = imaging::ReadSpecimen(files_, profile_.Image);
        if (auto* const page = std::get_if<imaging::Page>(&read))
            print_ = std::move(page->grid);
    }
    return print_ ? &*print_ : nullptr;
}

}  // namespace tavrene::ui
