#include "ui/page/BoxLayer.h"

#include <QAccessible>
#include <QGraphicsScene>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "ui/page/CosmeticPen.h"
#include "ui/page/DrawTool.h"
#include "ui/page/GridTool.h"
#include "ui/page/ImageView.h"
#include "ui/page/SelectTool.h"

namespace tavrene::ui {
namespace {

// How far beside a box a click still means it, in pixels of the screen.
constexpr double kNearby = 3;

// Room that is left around a box when it is scrolled to, in pixels of the screen.
constexpr int kScrollMargin = 60;

QRectF ToRect(const imaging::PageRect& box) {
    return {box.left, box.top, box.width, box.height};
}

imaging::PageRect ToPageRect(const QRectF& rect) {
    return {rect.left(), rect.top(), rect.width(), rect.height()};
}

}  // namespace

BoxLayer::BoxLayer(ImageView& view)
    : view_(view),
      items_(new QGraphicsItemGroup),
      frame_(new HandleFrame),
      labels_(new BoxLabels([&view](const QRectF& place) { return view.PrintedUpTo(place); })),
      groups_(new GroupFrames([&view](const QRectF& place) { return view.PrintedUpTo(place); })),
      grid_(std::make_unique<GridTool>(*this)),
      drawn_(new QGraphicsRectItem) {
    tools_[imaging::BoxTool::Select] = std::make_unique<SelectTool>(*this);
    tools_[imaging::BoxTool::Add] = std::make_unique<DrawTool>(*this);
    drawn_->setPen(CosmeticPen(QColor(213, 94, 0), 1.5, Qt::DashLine));
    drawn_->setBrush(QColor(213, 94, 0, 40));
    drawn_->setZValue(2);
    drawn_->setVisible(false);
    view_.scene()->addItem(items_);
    view_.scene()->addItem(frame_);
    view_.scene()->addItem(labels_);
    view_.scene()->addItem(groups_);
    view_.scene()->addItem(drawn_);
}

BoxLayer::~BoxLayer() = default;

void BoxLayer::SetEditable(bool editable) {
    if (editable == editable_)
        return;
    editable_ = editable;
    view_.UseTool(editable ? tools_[tool_].get() : nullptr);
}

void BoxLayer::SetTool(imaging::BoxTool tool, int nextGroup) {
    nextGroup_ = nextGroup;
    if (tool == tool_)
        return;
    tool_ = tool;
    if (editable_)
        view_.UseTool(tools_[tool_].get());
}

void BoxLayer::ShowLabels(std::map<int, BoxLabel> labels) {
    if (labels.empty() && labels_->IsEmpty())
        return;
    std::map<int, QRectF> places;
    for (const auto& [group, box] : boxes_)
        places[group] = box.place;
    labels_->SetPlaces(std::move(places));
    labels_->SetLabels(std::move(labels));
}

void BoxLayer::ShowGroups(std::vector<GroupFrame> frames) {
    if (!frames.empty() || !groups_->Frames().empty())
        groups_->SetFrames(std::move(frames));
}

void BoxLayer::DrawGrid(const std::function<void(const QRectF&, const QRectF&)>& drawn) {
    view_.UseTool(grid_.get());
    grid_->Start(drawn);
}

void BoxLayer::EndGrid() {
    view_.UseTool(editable_ ? tools_[tool_].get() : nullptr);
}

void BoxLayer::Clear() {
    qDeleteAll(items_->childItems());
    boxes_.clear();
    ShowDrawn({});
    Mark(0);
}

void BoxLayer::Put(int group, const imaging::PageRect& rect, imaging::RectStyle style) {
    ShowDrawn({});
    Shown& box = boxes_[group];
    if (box.item == nullptr)
        box.item = new RectItem(items_);
    box.style = style;
    box.item->SetStyle(style);
    ShowAt(group, ToRect(rect));
    if (style == imaging::RectStyle::Editable)
        view_.MakeReachable(ToRect(rect));
}

void BoxLayer::Remove(int group) {
    const auto box = boxes_.find(group);
    if (box == boxes_.end())
        return;
    if (group == selected_)
        Mark(0);
    marked_.erase(group);
    delete box->second.item;
    boxes_.erase(box);
}

void BoxLayer::Emphasise(int group) {
    Mark(group);
    if (selected_ != 0)
        view_.ensureVisible(PlaceOf(selected_), kScrollMargin, kScrollMargin);
}

double BoxLayer::Scale() const {
    return view_.Zoom() / 100;
}

QRectF BoxLayer::Room() const {
    constexpr double kMost = std::numeric_limits<std::int16_t>::max();
    const QRectF page = view_.PageRect();
    return page.isEmpty() ? QRectF(0, 0, kMost, kMost) : page;
}

QPointF BoxLayer::Snapped(const QPointF& point, const QRectF& place) const {
    const QRectF room = Room() | place;
    return {std::clamp(std::round(point.x()), room.left(), room.right()),
            std::clamp(std::round(point.y()), room.top(), room.bottom())};
}

QPointF BoxLayer::Way(const QRectF& place, const QPointF& by) const {
    const QRectF room = Room();
    return {std::clamp(std::round(by.x()), std::min(0.0, room.left() - place.left()),
                       std::max(0.0, room.right() - place.right())),
            std::clamp(std::round(by.y()), std::min(0.0, room.top() - place.top()),
                       std::max(0.0, room.bottom() - place.bottom()))};
}

QRectF BoxLayer::FreePlace(const QPointF& centre, const QSizeF& size) const {
    constexpr double kStep = 1.5;
    const QRectF room = Room();
    QRectF place({std::round(centre.x() - size.width() / 2), std::round(centre.y() - size.height() / 2)},
                 size);
    place.moveLeft(std::clamp(place.left(), room.left(), std::max(room.left(), room.right() - size.width())));
    place.moveTop(std::clamp(place.top(), room.top(), std::max(room.top(), room.bottom() - size.height())));
    const QPointF step(0, std::round(kStep * size.height()));
    while (HasBoxUnder(place.center()) && place.bottom() + step.y() <= room.bottom())
        place.translate(step);
    return place;
}

int BoxLayer::BoxAt(const QPointF& point) const {
    const double nearby = kNearby / Scale();
    int found = 0;
    double smallest = 0;
    for (const auto& [group, box] : boxes_) {
        const double area = box.place.width() * box.place.height();
        const bool isHit = box.place.adjusted(-nearby, -nearby, nearby, nearby).contains(point);
        if (!isHit || (found != 0 && area >= smallest))
            continue;
        found = group;
        smallest = area;
    }
    return found;
}

bool BoxLayer::HasBoxUnder(const QPointF& point) const {
    return std::any_of(boxes_.begin(), boxes_.end(),
                       [&point](const auto& box) { return box.second.place.contains(point); });
}

std::vector<int> BoxLayer::Numbers() const {
    std::vector<int> numbers;
    numbers.reserve(boxes_.size());
    for (const auto& [number, box] : boxes_)
        numbers.push_back(number);
    return numbers;
}

std::optional<imaging::RectStyle> BoxLayer::StyleOf(int group) const {
    const auto box = boxes_.find(group);
    return box == boxes_.end() ? std::nullopt : std::optional(box->second.style);
}

bool BoxLayer::IsEditable(int group) const {
    return StyleOf(group) == imaging::RectStyle::Editable;
}

QRectF BoxLayer::PlaceOf(int group) const {
    const auto box = boxes_.find(group);
    return box == boxes_.end() ? QRectF() : box->second.place;
}

void BoxLayer::ShowAt(int group, const QRectF& place) {
    const auto box = boxes_.find(group);
    if (box == boxes_.end())
        return;
    box->second.place = place;
    const bool isEditable = box->second.style == imaging::RectStyle::Editable;
    const imaging::PageRect rect = ToPageRect(place);
    box->second.item->SetRect(isEditable ? imaging::PaintedPart(rect) : rect);
    if (isEditable && IsMarked(group))
        frame_->SetRect(group, place);
}

QRectF BoxLayer::PlaceOfMarked() const {
    QRectF place;
    for (const int group : marked_)
        place |= PlaceOf(group);
    return place;
}

void BoxLayer::ShowMarkedAt(const QPointF& by) {
    for (const int group : marked_)
        ShowAt(group, PlaceOf(group).translated(by));
}

void BoxLayer::ShowDrawn(const QRectF& rect) {
    drawn_->setRect(rect);
    drawn_->setVisible(!rect.isNull());
}

void BoxLayer::TellSelected(int group, const QRectF& place) {
    listener_.selected(imaging::ReportOf(group, ToPageRect(place), view_.Zoom(), view_.Scroll()));
    // A rectangle that was not taken as a box leaves the selection as it was.
    if (boxes_.contains(group))
        Mark(group);
}

void BoxLayer::TellMoved(int group) {
    listener_.moved(group);
}

// Who follows the page by ear hears which box is meant now.
void BoxLayer::TellFocus() const {
    if (!QAccessible::isActive() || selected_ == 0 || !view_.hasFocus())
        return;
    QAccessibleEvent focus(&view_, QAccessible::Focus);
    focus.setChild(static_cast<int>(std::distance(boxes_.begin(), boxes_.find(selected_))));
    QAccessible::updateAccessibility(&focus);
}

void BoxLayer::TellFramed(const QRectF& area, bool isFurther) {
    listener_.framed(ToPageRect(area), isFurther);
}

void BoxLayer::TellMovedTogether(const QPointF& by, bool areCopies) {
    (areCopies ? listener_.copied : listener_.movedTogether)(static_cast<int>(by.x()),
                                                             static_cast<int>(by.y()));
}

void BoxLayer::Mark(std::span<const int> groups, int current) {
    if (const auto before = boxes_.find(selected_); before != boxes_.end())
        before->second.item->SetEmphasised(false);
    const auto box = boxes_.find(current);
    selected_ = box == boxes_.end() ? 0 : current;
    marked_.clear();
    if (groups.size() > 1)
        marked_.insert(groups.begin(), groups.end());
    frame_->Clear();
    if (selected_ == 0)
        return;
    const bool isEditable = IsEditable(selected_);
    box->second.item->SetEmphasised(!isEditable);
    for (const int group : marked_)
        frame_->SetRect(group, PlaceOf(group));
    if (isEditable)
        frame_->SetCurrent(selected_, PlaceOf(selected_));
    TellFocus();
}

}  // namespace tavrene::ui
