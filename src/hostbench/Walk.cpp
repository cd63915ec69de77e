#include "hostbench/Walk.h"

#include <algorithm>
#include <map>
#include <QClipboard>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "core/IesText.h"
#include "hostbench/HostWindow.h"
#include "hostbench/SampleLuminaire.h"
#include "hostlink/RecordText.h"

namespace penwright {

namespace {

/// How long one wait may take; far more than any takes on a slow machine.
constexpr int kWaitLimit = 15'000;

const QString kSaveTitle = QStringLiteral("Save New Photometric file As...");

/// The field word of the first text of the store in which two records differ, "" when they are the same there. Candelas
/// pass through the store with 15 digits, so the values themselves need not be equal to the last bit.
std::string differingText(const PhotometricRecord &one, const PhotometricRecord &other)
{
    std::map<std::string, std::string, std::less<>> texts;
    writeRecordTexts(one, [&](std::string_view word, std::string text) { texts.emplace(word, std::move(text)); });
    std::string differing;
    writeRecordTexts(other, [&](std::string_view word, const std::string &text) {
        const auto found = texts.find(word);
        if (differing.empty() && (found == texts.end() || found->second != text))
            differing = word;
    });
    return differing;
}

}  // namespace

const std::vector<Walk::Step> Walk::kSteps{
    {"prepare the folder", &Walk::prepareFolder},
    {"show the host's window", &Walk::showHost},
    {"start the tool", &Walk::startTool},
    {"page 1", &Walk::walkGeneralInfo},
    {"page 2", &Walk::walkTilt},
    {"page 3, back and on", &Walk::walkKeywordsAndBack},
    {"page 4", &Walk::walkDistribution},
    {"page 5", &Walk::walkCandela},
    {"page 6", &Walk::showComplete},
    {"open the save dialog", &Walk::openSaveDialog},
    {"type the file's name", &Walk::typeName},
    {"check the record that came back", &Walk::checkRecord},
    {"check the file on disk", &Walk::checkFile},
    {"close the tool", &Walk::waitForEnd},
};

Walk::Walk(HostWindow &window, QString folder) : m_window(window), m_folder(std::move(folder))
{
    QObject::connect(&m_window, &HostWindow::commandDone, &m_window,
                     [this](ToolTab *, const ToolCommand &command) { m_taken.push_back(command); });
    QObject::connect(&m_window, &HostWindow::toolEnded, &m_window, [this](ToolTab *tab) {
        m_hasEnded = true;
        m_exitStatus = tab->run().tool().exitStatus();
    });
}

QString Walk::run()
{
    for (const Step &step : kSteps)
        if (!(this->*step.run)())
            return QStringLiteral("the walk failed at \"%1\": %2").arg(step.name, m_reason);
    return {};
}

bool Walk::fail(const QString &reason)
{
    m_reason = reason;
    return false;
}

bool Walk::waitFor(const std::function<bool()> &condition, const QString &what)
{
    const QDeadlineTimer limit(std::min<qint64>(kWaitLimit, m_deadline.remainingTime()));
    while (!condition()) {
        if (limit.hasExpired())
            return fail(QStringLiteral("waited in vain for ") + what);
        QEventLoop loop;
        QTimer::singleShot(20, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}

bool Walk::waitForPage(int page)
{
    // Somebody else's window may take the focus at any time, so every key waits for it anew.
    const QString caption = LuminaireTyper::captionOf(page);
    if (!waitFor([&] { return m_hasEnded || m_display.focusedTitle() == caption; }, "the keyboard focus"))
        return fail(
            QStringLiteral("the keyboard focus is in \"%1\", not in \"%2\"").arg(m_display.focusedTitle(), caption));
    return !m_hasEnded || fail("the tool has ended");
}

bool Walk::press(std::uint32_t key, std::uint32_t modifier)
{
    return m_display.pressKey(key, modifier) || fail(QStringLiteral("the keyboard has no key 0x%1").arg(key, 0, 16));
}

bool Walk::turnTo(int page, char key)
{
    return press(static_cast<std::uint32_t>(key), kKeyAlt) && waitForPage(page);
}

QImage Walk::areaImage() const
{
    return m_window.screen()->grabWindow(m_tab->area().winId()).toImage();
}

bool Walk::takePicture(int page)
{
    // A page is on screen with all that was typed when its picture is another than that of the page before and at rest.
    m_picture.turn();
    if (!waitFor([&] { return m_picture.look(areaImage()); }, QStringLiteral("a still picture of page %1").arg(page)))
        return false;
    const QString path = QStringLiteral("%1/page-%2.png").arg(m_folder).arg(page);
    if (!m_window.screen()->grabWindow(m_window.winId()).save(path))
        return fail(QStringLiteral("cannot write ") + path);
    m_left.append(path);
    return true;
}

QString Walk::iesPath() const
{
    return m_folder + "/luminaire.ies";
}

bool Walk::prepareFolder()
{
    if (!m_display.isUsable())
        return fail(QStringLiteral("the X display does not let programs press keys (XTEST)"));
    if (!QDir().mkpath(m_folder))
        return fail(QStringLiteral("cannot make the folder ") + m_folder);
    if (const QString character = m_display.untypable(iesPath()); !character.isEmpty())
        return fail(QStringLiteral("the keyboard has no key for \"%1\" in %2").arg(character, iesPath()));
    // What an earlier walk left must not pass for what this one leaves.
    QDir folder(m_folder);
    for (const QString &name : folder.entryList({"luminaire.ies", "page-?.png"}, QDir::Files))
        if (!folder.remove(name))
            return fail(QStringLiteral("cannot replace %1/%2").arg(m_folder, name));
    return true;
}

bool Walk::showHost()
{
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
    return waitFor([&] { return m_window.windowHandle()->isExposed(); }, QStringLiteral("the window to show"));
}

bool Walk::startTool()
{
    m_tab = m_window.startTool();
    return waitForPage(1);
}

bool Walk::typed(const LuminaireTyper &typer)
{
    return typer.problem().isEmpty() || fail(typer.problem());
}

bool Walk::walkGeneralInfo()
{
    m_luminaire = sampleLuminaire();
    m_luminaire.OptionalData.clear();  // no page takes these two
    m_luminaire.PictureFilename.clear();
    LuminaireTyper typer(m_display, m_luminaire);
    if (!waitForPage(1))
        return false;
    typer.typeGeneralInfo();
    return typed(typer) && takePicture(1) && turnTo(2, 'n');
}

bool Walk::walkTilt()
{
    LuminaireTyper typer(m_display, m_luminaire);
    typer.typeTilt();
    return typed(typer) && takePicture(2) && turnTo(3, 'n');
}

bool Walk::walkKeywordsAndBack()
{
    LuminaireTyper typer(m_display, m_luminaire);
    typer.typeKeywords();
    m_luminaire.Keywords(1) += ' ';  // a keyword line is keyword, blank and description, the version line too
    return typed(typer) && takePicture(3) && turnTo(2, 'b') && turnTo(3, 'n') && turnTo(4, 'n');
}

bool Walk::walkDistribution()
{
    LuminaireTyper typer(m_display, m_luminaire);
    typer.typeDistribution();
    return typed(typer) && takePicture(4) && turnTo(5, 'n');
}

bool Walk::walkCandela()
{
    // The table comes from another program, as one comes from a spreadsheet.
    QGuiApplication::clipboard()->setText(LuminaireTyper::candelaTable(m_luminaire));
    LuminaireTyper typer(m_display, m_luminaire);
    typer.pasteCandelas();
    return typed(typer) && takePicture(5) && turnTo(6, 'n');
}

bool Walk::showComplete()
{
    return takePicture(6);
}

bool Walk::openSaveDialog()
{
    // The page begins with "Finish Unnamed"; the button after it saves.
    if (!press(kKeyTab) || !press(kKeySpace))
        return false;
    return waitFor([&] { return m_display.focusedTitle() == kSaveTitle; }, QStringLiteral("the dialog"));
}

bool Walk::typeName()
{
    m_display.type(iesPath());
    if (!press(kKeyReturn))
        return false;
    return waitFor([&] { return !m_taken.empty(); }, QStringLiteral("the tool's command"));
}

bool Walk::checkRecord()
{
    const std::string tag = m_tab ? m_tab->run().tool().address().tag : "";
    if (m_taken.front() != ToolCommand{ToolWord::SendNewDataClose, std::string(kToolName), tag})
        return fail(QStringLiteral("the command is not \"SendNewDataClose,\" with the tool's name and tag"));
    const HeldFile &file = m_window.files().at(m_window.files().count() - 1);
    PhotometricRecord expected = m_luminaire;
    expected.Filename = iesPath().toStdString();
    if (!file.isSaved || file.record.Filename != expected.Filename)
        return fail(QStringLiteral("it is named \"%1\"").arg(QString::fromStdString(file.record.Filename)));
    const std::string differing = differingText(file.record, expected);
    return differing.empty() || fail(QStringLiteral("its \"%1\" is another").arg(QString::fromStdString(differing)));
}

bool Walk::checkFile()
{
    QFile file(iesPath());
    if (!file.open(QIODevice::ReadOnly))
        return fail(QStringLiteral("cannot read %1: %2").arg(iesPath(), file.errorString()));
    if (file.readAll() != QByteArray::fromStdString(iesFileText(m_luminaire)))
        return fail(QStringLiteral("%1 does not hold the text of the luminaire typed").arg(iesPath()));
    m_left.prepend(iesPath());
    return true;
}

bool Walk::waitForEnd()
{
    if (!waitFor([&] { return m_hasEnded; }, QStringLiteral("the tool to end")))
        return false;
    if (m_taken.back().word != ToolWord::CloseRemove)
        return fail(QStringLiteral("the tool ended without \"CloseRemove,\""));
    return m_exitStatus == 0 || fail(QStringLiteral("the tool's exit status is %1").arg(m_exitStatus));
}

}  // namespace penwright
