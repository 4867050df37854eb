#pragma once

#include <QRadioButton>

class ElidedLabel;

/// One of the modes to choose from: a row as wide as the page with the mode's name and
/// perhaps a line about it.
///
/// Shows what is, not what was clicked: a click only reports the wish by clicked(), and
/// the owner calls setChecked() once the mode is in force. The up and down keys only ask
/// for the focus to move, so that nothing is changed by walking past. Give each option a
/// parent of its own, or Qt keeps one of them checked.
class ModeOption final : public QRadioButton
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ModeOption)

public:
    /// `description` may be empty.
    ModeOption(const QString &name, const QString &description, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    /// The focus should go `step` options on (1) or back (-1).
    void stepRequested(int step);

protected:
    bool hitButton(const QPoint &position) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void nextCheckState() override;
    void paintEvent(QPaintEvent *event) override;
};
