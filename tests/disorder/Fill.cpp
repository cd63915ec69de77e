#include "disorder/Fill.h"

#include "disorder/Scene.h"
#include "grid/GridView.h"

namespace penwright::test {
namespace {

/// A control of the window, whatever has come up above it meanwhile.
template <typename Widget = QWidget>
Widget *onPage(Scene &scene, const char *name)
{
    return scene.window->findChild<Widget *>(name);
}

void typeInto(Scene &scene, const char *name, const QString &text)
{
    auto *box = onPage<QLineEdit>(scene, name);
    if (!box->isEnabled())
        return;
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
}

void clickOnPage(Scene &scene, const char *name)
{
    QTest::mouseClick(onPage(scene, name), Qt::LeftButton);
}

void fillLamp(Scene &scene, unsigned kind)
{
    if (auto *shape = onPage<QComboBox>(scene, "lmpCmbShape"); kind % 3 == 0) {
        shape->setFocus();
        QTest::keyClick(shape, Qt::Key_Down);
    }
    for (const char *box : {"txtNumLamps", "txtLumPerLamp", "txtMultiplier", "txtBallast", "txtWatt", "txtWidth",
                            "txtLength", "txtHeight"})
        typeInto(scene, box, QString::number(1 + kind));
    if (onPage<QCheckBox>(scene, "chkIncludeTilt")->isChecked() != (kind % 2 == 0))
        clickOnPage(scene, "chkIncludeTilt");
}

void fillTilt(Scene &scene, unsigned kind)
{
    typeInto(scene, "lmpTxtNumAngles", "2");
    clickOnPage(scene, "l2lg1");
    auto *grid = onPage<GridView>(scene, "lmpGridTiltMultiplier");
    grid->setFocus();
    if (grid->model()->rowCount() < 2)
        return;
    grid->goTo(2, 0);
    QTest::keyClicks(&scene.focus(), kind % 2 ? "90" : "180");
    QTest::keyClick(&scene.focus(), Qt::Key_Return);
}

void fillKeywords(Scene &scene, unsigned kind)
{
    auto *grid = onPage<GridView>(scene, "keyGrid");
    grid->setFocus();
    if (grid->model()->rowCount() < 2)
        return;
    grid->goTo(2, 1);
    QTest::keyClicks(&scene.focus(), "No. " + QString::number(kind));
    QTest::keyClick(&scene.focus(), Qt::Key_Return);
}

void fillAngles(Scene &scene, unsigned kind)
{
    clickOnPage(scene, kind % 5 ? "rdoC" : "rdoB");
    for (const char *name : {"phoCmbVert", "phoCmbHorz"})
        if (auto *list = onPage<QComboBox>(scene, name); list->isVisible()) {
            list->setFocus();
            for (unsigned presses = kind % 3 + 1; presses > 0; --presses)
                QTest::keyClick(list, Qt::Key_Down);
        }
}

void fillCandela(Scene &scene, unsigned kind)
{
    auto *grid = onPage<GridView>(scene, "cdaGridCd");
    const int rows = grid->model()->rowCount();
    const int columns = grid->model()->columnCount() - 1;
    QString text;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            text += QString::number((row * 7 + column * 3 + static_cast<int>(kind)) % 1000) +
                    (column + 1 < columns ? "\t" : "\n");
    QGuiApplication::clipboard()->setText(text);
    grid->setFocus();
    QTest::keyClick(&scene.focus(), Qt::Key_V, Qt::ControlModifier);
}

}  // namespace

void fillPage(Scene &scene, unsigned kind)
{
    if (!scene.isPageOnTop())
        return;
    switch (scene.page().index()) {
        case kLampPage:
            return fillLamp(scene, kind);
        case kTiltPage:
            return fillTilt(scene, kind);
        case kKeywordPage:
            return fillKeywords(scene, kind);
        case kDistributionPage:
            return fillAngles(scene, kind);
        case kCandelaPage:
            return fillCandela(scene, kind);
        default:
            return;
    }
}

}  // namespace penwright::test
