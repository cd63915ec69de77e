#pragma once

#include "pages/luminaire/LuminousShapes.h"
#include "support/SpinUntil.h"
#include "widgets/WizardTest.h"
#include "wizard/WarningDialog.h"

namespace penwright::test {

/// Page 1 as the user finds it, driven by keys and clicks.
class LampPageTest : public WizardTest {
protected:
    void SetUp() override { startWizard(); }

    QComboBox *shapes() { return find<QComboBox>("lmpCmbShape"); }
    QLineEdit *box(const std::string &name) { return find<QLineEdit>(name); }
    std::string warningsOfNext()
    {
        return warningsOf([this] { click("cmdNext10"); });
    }

    PhotometricRecord &record() { return state.PhotFiles(1); }

    /// Clicks into a box, which selects what is there, and types.
    void typeInto(const std::string &name, const std::string &text)
    {
        QTest::mouseClick(box(name), Qt::LeftButton);
        QTest::keyClicks(QApplication::focusWidget(), QString::fromStdString(text));
    }

    /// Opens the list and clicks on a shape.
    void pickShape(int position)
    {
        shapes()->showPopup();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(shapes()->view()->window(), 60'000));
        QAbstractItemView *view = shapes()->view();
        const QModelIndex item = shapes()->model()->index(position, 0);
        view->scrollTo(item);
        // The list takes no click that comes right after its opening, which might be the second of a double click.
        ASSERT_TRUE(spinUntil([&] {
            QTest::mouseMove(view->viewport(), view->visualRect(item).center());
            QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(item).center());
            return !view->isVisible();
        }));
    }

    /// Types values that pass the checks into the boxes of lamp and power.
    void typePower()
    {
        typeInto("txtNumLamps", "2");
        typeInto("txtLumPerLamp", "1500");
        typeInto("txtMultiplier", "1.5");
        typeInto("txtBallast", "0.95");
        typeInto("txtWatt", "36.5");
    }
};

/// The eight text boxes of page 1 in the order of their checks.
inline const std::vector<std::string> kLampBoxes{"txtNumLamps", "txtLumPerLamp", "txtMultiplier", "txtBallast",
                                                 "txtWatt",     "txtWidth",      "txtLength",     "txtHeight"};

}  // namespace penwright::test
