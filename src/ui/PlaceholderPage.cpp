#include "PlaceholderPage.h"

#include "ElidedLabel.h"
#include "StyleProperty.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

PlaceholderPage::PlaceholderPage(const QString &objectName, const QString &sentence,
                                 QWidget *parent)
    : QWidget(parent)
    , m_message(new ElidedLabel(this))
{
    setObjectName(objectName);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    m_message->hide();
    auto *label = new ElidedLabel(sentence, this);
    setStyleProperty(*label, "vantuRole", u"muted"_s);
    column->addWidget(m_message);
    column->addWidget(label);
    column->addStretch(1);
}

void PlaceholderPage::setMessage(const QString &message)
{
    m_message->setText(message);
    m_message->setAccessibleName(message);
    m_message->setVisible(!message.isEmpty());
}
