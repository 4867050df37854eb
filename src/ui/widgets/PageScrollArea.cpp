#include "PageScrollArea.h"

#include "ThemedScrollBar.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

PageScrollArea::PageScrollArea(QWidget *parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // It paints nothing while there is nothing to scroll.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBar(new ThemedScrollBar(Qt::Vertical, this));
}

QVBoxLayout *PageScrollArea::setContent(QWidget &content)
{
    const int beforeBar = kSideMargin - verticalScrollBar()->sizeHint().width();
    auto *row = new QHBoxLayout(&content); // Side margins would stay on theirs when mirrored.
    row->setContentsMargins(0, 0, 0, kBottomMargin);
    row->setSpacing(0);
    row->addSpacing(kSideMargin);
    auto *column = new QVBoxLayout;
    row->addLayout(column, 1);
    row->addSpacing(beforeBar);
    content.setMaximumWidth(kSideMargin + kColumnWidth + beforeBar);
    setWidget(&content);
    content.setAutoFillBackground(false); // The window's ground shows through.
    return column;
}
