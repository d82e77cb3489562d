// The outlines of boxes on light and on dark desktops, and the room between them.
#include "controls/visible_boxes.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QRadioButton>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <memory>

#include "controls/check_list_box.h"
#include "support/contrast.h"

namespace {

constexpr double kContrastOfShapes = 3;  // what the guidelines ask of anything but texts

const QColor kDarkWindow(45, 45, 45);
const QColor kDarkBase(30, 30, 30);

QPalette darkPalette() {
    QPalette dark;
    dark.setColor(QPalette::Window, kDarkWindow);
    dark.setColor(QPalette::Base, kDarkBase);
    dark.setColor(QPalette::WindowText, QColor(240, 240, 240));
    dark.setColor(QPalette::Text, QColor(240, 240, 240));
    return dark;
}

class VisibleBoxesTest : public testing::Test {
  protected:
    // How well the outline is seen, where it is crossed halfway up, on what is around it and in it.
    void expectOutline(QWidget& widget, const QRect& box) {
        widget.setPalette(darkPalette());
        const QImage picture = widget.grab().toImage();
        double around = 1;
        double inside = 1;
        for (int x = box.left(); x < box.center().x(); ++x) {
            const QColor pixel = picture.pixelColor(x, box.center().y());
            around = std::max(around, contrast(pixel, kDarkWindow));
            inside = std::max(inside, contrast(pixel, kDarkBase));
        }
        EXPECT_GE(around, kContrastOfShapes);
        EXPECT_GE(inside, kContrastOfShapes);
    }

    template <class Button>
    QRect indicatorOf(const Button& button, QStyle::SubElement element) {
        QStyleOptionButton option;
        option.initFrom(&button);
        return style_.subElementRect(element, &option, &button);
    }

    VisibleBoxes style_{QStringLiteral("Fusion")};
};

}  // namespace

TEST_F(VisibleBoxesTest, OutlineACheckBoxOnADarkDesktop) {
    QCheckBox box;
    box.setStyle(&style_);
    box.resize(120, 24);
    expectOutline(box, indicatorOf(box, QStyle::SE_CheckBoxIndicator));
}

TEST_F(VisibleBoxesTest, OutlineAnOptionButtonOnADarkDesktop) {
    QRadioButton button;
    button.setStyle(&style_);
    button.resize(120, 24);
    expectOutline(button, indicatorOf(button, QStyle::SE_RadioButtonIndicator));
}

TEST_F(VisibleBoxesTest, OutlineTheBoxOfAListsEntryOnADarkDesktop) {
    CheckListBox list;
    list.setStyle(&style_);
    list.setFrameShape(QFrame::NoFrame);
    list.fill({{QStringLiteral("Adler")}, {QStringLiteral("Curie")}});
    list.resize(160, 80);
    QStyleOptionViewItem option;
    option.initFrom(&list);
    option.rect = list.visualRect(list.QListView::model()->index(1, 0));
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    expectOutline(list,
                  style_.subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list));
}

TEST_F(VisibleBoxesTest, KeepTheBoxesOfAListApart) {
    CheckListBox list;
    list.setStyle(&style_);
    QFont small = list.font();
    small.setPixelSize(8);
    list.setFont(small);
    list.fill({{QStringLiteral("Adler")}, {QStringLiteral("Curie")}});
    const QAbstractItemModel& entries = *list.QListView::model();
    const int row =
        list.visualRect(entries.index(1, 0)).top() - list.visualRect(entries.index(0, 0)).top();
    EXPECT_GE(row, style_.pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &list) + 2);
}

TEST_F(VisibleBoxesTest, LeaveALightDesktopAsItIs) {
    const std::unique_ptr<QStyle> plain(QStyleFactory::create(QStringLiteral("Fusion")));
    QCheckBox box;
    box.setPalette(Qt::white);
    box.setStyle(plain.get());
    const QImage picture = box.grab().toImage();
    box.setStyle(&style_);
    EXPECT_EQ(box.grab().toImage(), picture);
}
