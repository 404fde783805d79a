#include <gtest/gtest.h>

#include <QGraphicsScene>
#include <QPainter>
#include <algorithm>

#include "ui/page/BoxLabels.h"
#include "ui/page/GroupFrames.h"

namespace tavrene::ui {
namespace {

constexpr QSize kSize(400, 200);

// What of a screen with so many dots a pixel is not white, in pixels.
QRectF InkOf(QGraphicsScene& scene, int dots) {
    QImage painted(kSize * dots, QImage::Format_RGB32);
    painted.setDevicePixelRatio(dots);
    painted.fill(Qt::white);
    QPainter painter(&painted);
    scene.render(&painter, QRectF({0, 0}, kSize), QRectF({0, 0}, kSize));
    QRect ink;
    for (int y = 0; y < painted.height(); ++y)
        for (int x = 0; x < painted.width(); ++x)
            if (qGray(painted.pixel(x, y)) < 200)
                ink |= QRect(x, y, 1, 1);
    return {QPointF(ink.topLeft()) / dots, QSizeF(ink.size()) / dots};
}

TEST(LabelsTest, AFineScreenShowsNamesAndFramesAsLargeAsAnyOther) {
    const QRectF box(100, 80, 24, 24);
    auto* const labels = new BoxLabels;
    labels->SetPlaces({{1, box}});
    labels->SetLabels({{1, {"Question 17", false}}});
    auto* const frames = new GroupFrames;
    frames->SetFrames({{box, "Question 17: one mark"}});
    for (QGraphicsItem* const item : std::initializer_list<QGraphicsItem*>{labels, frames}) {
        QGraphicsScene scene;
        scene.addItem(item);
        const QRectF coarse = InkOf(scene, 1);
        const QRectF fine = InkOf(scene, 3);
        EXPECT_GT(coarse.width(), 40);
        EXPECT_NEAR(fine.width(), coarse.width(), 6);
        EXPECT_NEAR(fine.height(), coarse.height(), 4);
    }
}

// As of two blocks of questions side by side, the first of which has print up to 200 behind it.
TEST(LabelsTest, WhatAFrameSaysStandsBehindThePrintAndOverNoOtherFrame) {
    const QString said = "A question: one mark";
    double printEnd = 0;
    auto* const frames = new GroupFrames(
        [&](const QRectF& place) { return std::max(place.left(), std::min(place.right(), printEnd)); });
    QGraphicsScene scene;
    scene.addItem(frames);
    const GroupFrame first{{10, 80, 60, 24}, said};
    frames->SetFrames({first});
    const QRectF alone = InkOf(scene, 1);
    EXPECT_NEAR(alone.top(), 77, 3) << "on its line";
    EXPECT_GT(alone.right(), 150);
    printEnd = 150;
    const QRectF printed = InkOf(scene, 1);
    EXPECT_NEAR(printed.right() - alone.right(), 150 - 76, 8);
    frames->SetFrames({first, {{130, 80, 60, 24}, ""}});
    EXPECT_LT(InkOf(scene, 1).right(), 200) << "neither over the other frame nor behind it";
    EXPECT_LT(InkOf(scene, 1).top(), 70) << "but above";
}

}  // namespace
}  // namespace tavrene::ui
