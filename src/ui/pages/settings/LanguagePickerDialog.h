#pragma once

#include "PickerDialog.h"
#include "ServiceRecords.h"

class Theme;

/// Lets the user choose the language of the interface and of the service's content. Use
/// open(). Lives on the GUI thread.
class LanguagePickerDialog final : public PickerDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LanguagePickerDialog)

public:
    /// `config` gives the present choice and, if the daemon names them, the languages.
    LanguagePickerDialog(const LanguageConfigInfo &config, Theme &theme, QWidget *parent = nullptr);

    /// The name of a language in itself, as the list has it.
    static QString languageName(const QString &code, const LanguageConfigInfo &config);

Q_SIGNALS:
    /// `source` is "system" or "explicit"; `language` the code.
    void applied(const QString &source, const QString &language);

protected:
    void report(const QStringList &chosen) override;
};
