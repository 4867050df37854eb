#pragma once

#include "PrimaryAction.h"
#include "RestingFocus.h"

#include <QFrame>

class ElidedLabel;
class PrimaryActionProgressOverlay;
class FlagLabel;
class QLabel;
class QPushButton;
struct VpnSummary;

/// The card that tells the connection's state, place and duration, with the one button
/// that changes it.
class VpnStatusCard final : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VpnStatusCard)

public:
    explicit VpnStatusCard(QWidget *parent = nullptr);

    void render(const VpnSummary &summary);
    QPushButton *primaryButton() const { return m_primary; }

Q_SIGNALS:
    void triggered(PrimaryAction::Intent intent);

private:
    void buildContent();

    RestingFocus m_focus;
    PrimaryAction::Intent m_intent = PrimaryAction::Intent::Connect;
    QLabel *m_dot = nullptr;
    ElidedLabel *m_title = nullptr;
    FlagLabel *m_flag = nullptr;
    ElidedLabel *m_detail = nullptr;
    QPushButton *m_primary = nullptr;
    PrimaryActionProgressOverlay *m_progress = nullptr;
};
