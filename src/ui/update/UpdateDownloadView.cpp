#include "UpdateDownloadView.h"

#include "LabelText.h"
#include "MessageArea.h"
#include "PlainText.h"
#include "UpdateRecords.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using State = GUIUpdateDownloadInfo::State;

constexpr double kBytesPerMegabyte = 1048576.0;

/// The texts are the dialog's.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(UpdateDialog)
};

QString megabytes(qint64 bytes)
{
    const double size = static_cast<double>(std::max<qint64>(bytes, 0)) / kBytesPerMegabyte;
    return labeltext::embedded(Text::tr("%1 MB").arg(QLocale().toString(size, 'f', 1)));
}

void describeDownloading(const GUIUpdateDownloadInfo &download, UpdateDownloadView &view)
{
    if (download.bytesTotal < 1) {
        view.status = Text::tr("Downloading update...");
        return;
    }
    const double fraction = static_cast<double>(std::max<qint64>(download.bytesDownloaded, 0)) /
                            static_cast<double>(download.bytesTotal);
    view.barMaximum = UpdateDownloadView::kBarMaximum;
    view.barValue =
        static_cast<int>(std::min(fraction, 1.0) * double{UpdateDownloadView::kBarMaximum});
    view.status = Text::tr("Downloading %1 of %2")
                      .arg(megabytes(download.bytesDownloaded), megabytes(download.bytesTotal));
}

void describeProgress(const GUIUpdateDownloadInfo &download, UpdateDownloadView &view)
{
    switch (download.state) {
    case State::Unknown:
        view.status = Text::tr("Could not read the update download status.");
        view.statusIsError = true;
        return;
    case State::Idle:
        return;
    case State::Failed:
        view.status = plaintext::singleLine(download.errorMessage, MessageArea::kMaxLength);
        if (view.status.isEmpty()) {
            view.status = Text::tr("Could not download the update.");
        }
        view.statusIsError = true;
        return;
    case State::Canceled:
        view.status = Text::tr("Download canceled.");
        return;
    case State::Checking:
        view.status = Text::tr("Preparing the download...");
        break;
    case State::Downloading:
        describeDownloading(download, view);
        break;
    case State::Verifying:
        view.status = Text::tr("Verifying the download...");
        break;
    case State::Canceling:
        view.status = Text::tr("Canceling the download...");
        break;
    case State::Ready:
        view.status = Text::tr("Download complete. Opening the installer...");
        view.barMaximum = UpdateDownloadView::kBarMaximum;
        view.barValue = UpdateDownloadView::kBarMaximum;
        break;
    }
    view.barShown = true;
}

void describePrimary(State state, UpdateDownloadView &view)
{
    switch (state) {
    case State::Checking:
    case State::Downloading:
    case State::Verifying:
        view.active = true;
        view.primary = Text::tr("Cancel Download");
        view.primaryDescription = Text::tr("Cancel the update download");
        break;
    case State::Canceling:
        view.primary = Text::tr("Canceling...");
        view.primaryDescription = Text::tr("Canceling the update download");
        view.primaryEnabled = false;
        break;
    case State::Ready:
        view.primary = Text::tr("Opening Installer...");
        view.primaryDescription = Text::tr("Opening the Vantu update installer");
        view.primaryEnabled = false;
        break;
    case State::Failed:
    case State::Canceled:
        view.primary = Text::tr("Retry Download");
        view.primaryDescription = Text::tr("Retry the update download");
        break;
    case State::Unknown:
    case State::Idle:
        view.primary = Text::tr("Download Update");
        view.primaryDescription = Text::tr("Download and install the Vantu update");
        break;
    }
}

} // namespace

UpdateDownloadView UpdateDownloadView::of(const GUIUpdateDownloadInfo &download)
{
    UpdateDownloadView view;
    describeProgress(download, view);
    describePrimary(download.state, view);
    return view;
}
