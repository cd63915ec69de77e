#pragma once

#include <functional>
#include <QDeadlineTimer>
#include <QImage>
#include <QPointer>
#include <QString>
#include <vector>

#include "core/PhotometricRecord.h"
#include "hostbench/LuminaireTyper.h"
#include "hostbench/StillPicture.h"
#include "hostbench/ToolTab.h"
#include "hostbench/XDisplay.h"

namespace penwright {

class HostWindow;

/// One whole path without a user: real keys type a whole luminaire into the wizard's pages, its candelas pasted from
/// this process' clipboard, and save it, and what comes back is checked. Leaves "luminaire.ies" and "page-1.png" to
/// "page-6.png" in a folder. Ends within a minute.
class Walk {
public:
    /// `folder` is absolute; it is made when it is not there.
    Walk(HostWindow &window, QString folder);

    /// Walks to the end. "", or one line that names the step that failed and why.
    QString run();

    /// The files left, with their paths.
    const QStringList &left() const { return m_left; }

private:
    struct Step {
        const char *name;
        bool (Walk::*run)();
    };
    static const std::vector<Step> kSteps;

    bool prepareFolder();
    bool showHost();
    bool startTool();
    bool walkGeneralInfo();
    bool walkTilt();
    bool typed(const LuminaireTyper &typer);
    bool walkKeywordsAndBack();
    bool walkDistribution();
    bool walkCandela();
    bool showComplete();
    bool openSaveDialog();
    bool typeName();
    bool checkRecord();
    bool checkFile();
    bool waitForEnd();

    bool fail(const QString &reason);
    bool waitFor(const std::function<bool()> &condition, const QString &what);
    bool waitForPage(int page);
    bool press(std::uint32_t key, std::uint32_t modifier = 0);
    bool turnTo(int page, char key);
    bool takePicture(int page);
    QImage areaImage() const;
    QString iesPath() const;

    HostWindow &m_window;
    QString m_folder;
    XDisplay m_display;
    QDeadlineTimer m_deadline{60'000};
    QPointer<ToolTab> m_tab;
    PhotometricRecord m_luminaire;
    std::vector<ToolCommand> m_taken;
    bool m_hasEnded = false;
    int m_exitStatus = -1;
    StillPicture m_picture;  ///< of the tool's place in the window
    QString m_reason;
    QStringList m_left;
};

}  // namespace penwright
