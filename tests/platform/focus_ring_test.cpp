// The focus ring must stand out on every face the forms use and in a
// high-contrast theme: measured on the pixels really painted, as the
// contrast ratio between the ring and the face around it.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QRadioButton>
#include <QStyle>
#include <QImage>
#include <QLineEdit>
#include <QWidget>
#include <QtTest/QTest>
#include <cmath>

#include "platform/focus_ring.h"
#include "platform/wrap_button.h"

using namespace gp;

namespace {
double luminance(QColor c) {
    auto ch = [](double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * ch(c.redF()) + 0.7152 * ch(c.greenF()) + 0.0722 * ch(c.blueF());
}
double contrast(QColor a, QColor b) {
    const double la = luminance(a), lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

// The widget painted into an image at one device pixel a pixel.
QImage painted(QWidget& w) { return w.grab().toImage().convertToFormat(QImage::Format_RGB32); }

// A window whose first control, a text box, takes the focus when it comes
// up, so that the control under test starts without it.
struct ActiveWindow : QWidget {
    ActiveWindow() {
        resize(200, 100);
        (new QLineEdit(this))->setGeometry(150, 80, 40, 18);
    }
    bool activate() {
        show();
        activateWindow();
        return QTest::qWaitForWindowActive(this);
    }
};

struct Face {
    const char* name;
    QColor button;
    QColor text;
};
} // namespace

TEST(FocusRing, TakesBlackOnLightFacesAndWhiteOnDarkOnes) {
    EXPECT_EQ(focusRingColour(QColor(255, 255, 0)), QColor(Qt::black));    // menu yellow
    EXPECT_EQ(focusRingColour(QColor(0, 192, 192)), QColor(Qt::black));    // menu cyan
    EXPECT_EQ(focusRingColour(QColor(255, 0, 0)), QColor(Qt::black));      // pure red: 5.3 to 4.0
    EXPECT_EQ(focusRingColour(QColor(0, 0, 255)), QColor(Qt::white));
    EXPECT_EQ(focusRingColour(QColor(Qt::black)), QColor(Qt::white));
    // Either side of the grey where black and white stand out alike.
    EXPECT_EQ(focusRingColour(QColor(119, 119, 119)), QColor(Qt::black));
    EXPECT_EQ(focusRingColour(QColor(116, 116, 116)), QColor(Qt::white));
}

TEST(FocusRing, IsPlainOnEveryButtonFace) {
    const Face faces[] = {
        {"yellow", QColor(255, 255, 0), Qt::black},       {"cyan", QColor(0, 255, 255), Qt::black},
        {"green", QColor(0, 255, 0), Qt::black},          {"light red", QColor(255, 128, 128), Qt::black},
        {"light blue", QColor(128, 255, 255), Qt::black}, {"default", QColor(), Qt::black},
        {"high contrast", QColor(Qt::black), Qt::white},  {"dark blue", QColor(0, 0, 128), Qt::white},
    };
    for (const Face& f : faces) {
        SCOPED_TRACE(f.name);
        ActiveWindow window;
        auto* button = new WrapButton("", &window);
        button->setGeometry(10, 10, 120, 60);
        if (f.button.isValid()) {
            QPalette p = button->palette();
            p.setColor(QPalette::Button, f.button);
            p.setColor(QPalette::ButtonText, f.text);
            button->setPalette(p);
        }
        ASSERT_TRUE(window.activate());
        const QImage before = painted(*button);
        button->setFocus();
        ASSERT_TRUE(button->hasFocus());
        const QImage after = painted(*button);
        const QColor face = after.pixelColor(60, 30);
        // The ring runs all round, two pixels wide, inside the button's edge.
        for (QPoint at : {QPoint(2, 30), QPoint(3, 30), QPoint(117, 30), QPoint(60, 2), QPoint(60, 57)}) {
            EXPECT_GE(contrast(after.pixelColor(at), face), 3.0) << at.x() << "," << at.y();
            EXPECT_NE(after.pixelColor(at), before.pixelColor(at)) << at.x() << "," << at.y();
        }
    }
}

TEST(FocusRing, SurroundsAFocusedCheckBox) {
    ActiveWindow window;
    auto* box = new RingedBox<QCheckBox>("Double side it", &window);
    box->setGeometry(10, 10, 150, 25);
    ASSERT_TRUE(window.activate());
    const QImage before = painted(*box);
    box->setFocus();
    const QImage after = painted(*box);
    const QColor ground = after.pixelColor(140, 12);
    for (QPoint at : {QPoint(1, 12), QPoint(140, 1), QPoint(148, 12), QPoint(140, 23)}) {
        EXPECT_GE(contrast(after.pixelColor(at), ground), 3.0) << at.x() << "," << at.y();
        EXPECT_NE(after.pixelColor(at), before.pixelColor(at)) << at.x() << "," << at.y();
    }
}

// A caption that does not fit its button at the design's font takes a
// smaller one; one that fits keeps its own.
TEST(ButtonCaption, ShrinksOnlyWhenItDoesNotFit) {
    QFont arial("Arial");
    arial.setPointSizeF(12);
    arial.setBold(true);
    const QRect wide(0, 0, 300, 60), narrow(0, 0, 90, 40);
    EXPECT_EQ(captionFont(arial, wide, "Triangles").pointSizeF(), 12.0);
    const QFont smaller = captionFont(arial, narrow, "Multiplication Table and Squares");
    EXPECT_LT(smaller.pointSizeF(), 12.0);
    EXPECT_GE(smaller.pointSizeF(), 5.0);
    const int flags = Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;
    const QRect need = QFontMetrics(smaller).boundingRect(narrow, flags, "Multiplication Table and Squares");
    EXPECT_LE(need.height(), narrow.height());
    EXPECT_LE(need.width(), narrow.width());
    // A box too small for any size stops at the smallest instead of looping.
    EXPECT_EQ(captionFont(arial, QRect(0, 0, 4, 4), "Plot Points").pointSizeF(), 5.0);
}

TEST(ButtonCaption, AnOptionCaptionTooWideForItsBoxTakesASmallerFont) {
    QWidget window;
    QFont bold("Arial");
    bold.setPointSizeF(12);
    bold.setBold(true);
    QRadioButton fits("No Color", &window), tight("Random Color", &window);
    for (QRadioButton* b : {&fits, &tight}) b->setFont(bold);
    fits.setGeometry(0, 0, 129, 25);
    tight.setGeometry(0, 30, 90, 25);
    EXPECT_EQ(boxCaptionFont(fits, true).pointSizeF(), 12.0);
    const QFont smaller = boxCaptionFont(tight, true);
    EXPECT_LT(smaller.pointSizeF(), 12.0);
    const int mark = tight.style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &tight) +
                     tight.style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, &tight);
    EXPECT_LE(QFontMetrics(smaller).horizontalAdvance("Random Color") + mark, tight.width());
}
