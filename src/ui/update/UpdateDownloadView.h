#pragma once

#include <QString>

struct GUIUpdateDownloadInfo;

/// What the update dialog shows of a download: the words and numbers alone.
struct UpdateDownloadView
{
    /// The bar counts to this; 0 stands for "nobody knows how long".
    static constexpr int kBarMaximum = 1000;

    QString status; ///< Empty while there is nothing to say.
    bool statusIsError = false;
    bool barShown = false;
    int barMaximum = 0;
    int barValue = 0;

    QString primary;
    QString primaryDescription;
    bool primaryEnabled = true;
    bool active = false; ///< It runs, and the primary button ends it.

    /// Translates into the language of the program and writes numbers by its locale.
    static UpdateDownloadView of(const GUIUpdateDownloadInfo &download);
};
