// The headers of Qt that most sources include, for builds with VANTU_PCH.
#pragma once

#include <QAbstractItemModel>
#include <QApplication>
#include <QBoxLayout>
#include <QDateTime>
#include <QDialog>
#include <QHash>
#include <QJsonObject>
#include <QLabel>
#include <QList>
#include <QMenu>
#include <QObject>
#include <QPainter>
#include <QPushButton>
#include <QString>
#include <QThread>
#include <QTimer>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <optional>
