#include "disorder/Acts.h"

#include <cstdlib>
#include <map>
#include <sstream>

#include "disorder/Fill.h"
#include "disorder/Scene.h"
#include "disorder/Script.h"
#include "grid/GridView.h"
#include "widgets/PageTexts.h"
#include "wizard/PageSteps.h"

namespace penwright::test {
namespace {

void clickOn(QWidget *widget)
{
    if (widget && widget->isVisible() && widget->isEnabled())
        QTest::mouseClick(widget, Qt::LeftButton);
}

void press(Scene &scene, const std::string &keys)
{
    const QKeySequence sequence = QKeySequence::fromString(QString::fromStdString(keys));
    if (scene.isUsable() && !sequence.isEmpty())
        QTest::keyClick(&scene.focus(), sequence[0].key(), sequence[0].keyboardModifiers());
}

void type(Scene &scene, const std::string &text)
{
    for (const QChar character : QString::fromStdString(text))
        if (scene.isUsable())
            QTest::sendKeyEvent(QTest::Click, &scene.focus(), Qt::Key_unknown, QString(character), Qt::NoModifier);
}

void turn(Scene &scene, const char *button)
{
    if (scene.isPageOnTop())
        clickOn(scene.find(button + std::to_string(kPages[static_cast<std::size_t>(scene.page().index())].number)));
}

void click(Scene &scene, const std::string &name)
{
    if (QWidget *popup = QApplication::activePopupWidget())
        popup->close();  // by the press beside it, which goes no further
    else if (scene.isUsable())
        clickOn(scene.find(name));
}

/// As a screen reader presses a button, whatever is open.
void pressUnseen(Scene &scene, const std::string &name)
{
    auto *button = scene.window->findChild<QAbstractButton *>(QString::fromStdString(name));
    if (scene.isUsable() && button && button->isVisible())
        button->click();
}

void focusOn(Scene &scene, const std::string &name)
{
    QWidget *widget = scene.isPageOnTop() ? scene.find(name) : nullptr;
    if (widget && widget->isVisible() && widget->isEnabled())
        widget->setFocus();
}

void goToCell(Scene &scene, const std::string &place)
{
    std::istringstream words(place);
    std::string name;
    int row = 0;
    int column = 0;
    words >> name >> row >> column;
    auto *grid = scene.isPageOnTop() ? scene.find<GridView>(name) : nullptr;
    if (!grid || !grid->isVisible() || row >= grid->model()->rowCount() || column >= grid->model()->columnCount())
        return;
    grid->setFocus();
    grid->goTo(row + 1, column);
}

void answer(Scene &scene, const std::string &word)
{
    QWidget *modal = QApplication::activeModalWidget();
    if (QApplication::activePopupWidget())
        return press(scene, "Escape");
    if (!modal)
        return;
    if (word == "Escape" || word == "Enter")
        return press(scene, word);
    if (word == "Close") {
        modal->close();
        return;
    }
    for (auto *button : modal->findChildren<QAbstractButton *>())
        if (button->text().remove('&').toStdString() == word && button->isVisible())
            return clickOn(button);
}

void chooseName(Scene &scene, const std::string &name)
{
    auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    if (dialog && !QApplication::activePopupWidget())
        if (auto *line = dialog->findChild<QLineEdit *>("fileNameEdit")) {
            line->setFocus();
            line->setText(QString::fromStdString(name.empty() ? "" : scene.ground.files + "/" + name));
        }
}

std::string undoRedo(Scene &scene)
{
    if (!scene.isPageOnTop() || scene.window->isBusy())
        return {};
    PageSteps &steps = scene.page().steps();
    for (const auto *grid : scene.page().findChildren<GridView *>())
        if (grid->isEditing())
            return {};
    steps.endAct();
    const PageText before = textsOf(scene.page());
    if (steps.canUndo()) {
        steps.undo();
        steps.redo();
    } else if (steps.canRedo()) {
        steps.redo();
        steps.undo();
    }
    return textsOf(scene.page()) == before ? "" : "a step there and back gives other values";
}

void step(Scene &scene, bool isUndo)
{
    if (scene.isPageOnTop())
        isUndo ? scene.page().steps().undo() : scene.page().steps().redo();
}

void openMenu(Scene &scene)
{
    if (!scene.isUsable())
        return;
    QWidget &at = scene.focus();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, at.rect().center(), at.mapToGlobal(at.rect().center()));
    QApplication::sendEvent(&at, &event);
}

void resize(Scene &scene, const std::string &size)
{
    std::istringstream words(size);
    int width = 1;
    int height = 1;
    words >> width >> height;
    scene.window->resize(width, height);
}

void takes(Scene &scene, const std::string &how)
{
    scene.host.take(how == "never"  ? PlayedHost::Taking::Never
                    : how == "late" ? PlayedHost::Taking::Late
                                    : PlayedHost::Taking::AtOnce);
}

/// How a run ends; a tool that stands alone ends like one that is embedded.
void end(Scene &scene, const std::string &how)
{
    const auto &records = scene.state.CandelaWorkRecord;
    if (how == "gone")
        scene.closing.hostVanished();
    else if (how == "signal")
        scene.closing.begin();
    else if (how == "delete" && !records.empty())
        scene.host.send("DELETEFILE," + records(1).Filename);
    else
        scene.host.send("CLOSE");
}

using Act = std::string (*)(Scene &, const std::string &);

template <auto routine>
std::string quiet(Scene &scene, const std::string &argument)
{
    routine(scene, argument);
    return {};
}

unsigned numberIn(const std::string &text)
{
    return static_cast<unsigned>(std::atoi(text.c_str()));
}

const std::map<std::string, Act> kActs{
    {"answer", quiet<answer>},
    {"cell", quiet<goToCell>},
    {"click", quiet<click>},
    {"end", quiet<end>},
    {"fill", quiet<[](Scene &scene, const std::string &n) { fillPage(scene, numberIn(n)); }>},
    {"focus", quiet<focusOn>},
    {"key", quiet<press>},
    {"name", quiet<chooseName>},
    {"press", quiet<pressUnseen>},
    {"resize", quiet<resize>},
    {"takes", quiet<takes>},
    {"type", quiet<type>},
    {"menu", quiet<[](Scene &scene, const std::string &) { openMenu(scene); }>},
    {"next", quiet<[](Scene &scene, const std::string &) { turn(scene, "cmdNext"); }>},
    {"back", quiet<[](Scene &scene, const std::string &) { turn(scene, "cmdBack"); }>},
    {"undo", quiet<[](Scene &scene, const std::string &) { step(scene, true); }>},
    {"redo", quiet<[](Scene &scene, const std::string &) { step(scene, false); }>},
    {"undoRedo", [](Scene &scene, const std::string &) { return undoRedo(scene); }},
    {"clip", quiet<[](Scene &, const std::string &text) {
         QGuiApplication::clipboard()->setText(QString::fromStdString(unescaped(text)));
     }>},
    {"host", quiet<[](Scene &scene, const std::string &text) { scene.host.send(unescaped(text)); }>},
    {"record", quiet<[](Scene &scene, const std::string &n) { scene.host.storeRecord(numberIn(n)); }>},
    {"broken", quiet<[](Scene &scene, const std::string &n) { scene.host.storeBroken(numberIn(n)); }>},
    // The drafts are looked for by a thread of their own.
    {"sleep", quiet<[](Scene &, const std::string &n) { QThread::msleep(numberIn(n)); }>},
    {"lock", quiet<[](Scene &scene, const std::string &n) { scene.host.lock(std::atoi(n.c_str())); }>},
    {"crash", [](Scene &, const std::string &) -> std::string { std::abort(); }},  // what the tests of the tests need
};

}  // namespace

std::string act(Scene &scene, const std::string &line)
{
    const std::size_t end = std::min(line.find(' '), line.size());
    const auto found = kActs.find(line.substr(0, end));
    if (found == kActs.end())
        return "there is no such act";
    return found->second(scene, end < line.size() ? line.substr(end + 1) : "");
}

}  // namespace penwright::test
