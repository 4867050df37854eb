#pragma once

#include <QString>

/// The place that a connect was asked for, so that the page can name it before the
/// daemon does.
struct PendingConnectTarget
{
    enum class Kind {
        None,
        Node,  ///< `id` is the node's.
        Smart, ///< The best server of a group or tab, whose key is `id`; empty for all.
    };

    Kind kind = Kind::None;
    QString id;
    QString label;
    QString flagCode; ///< "jp"; empty when it is to be found out from the rest.

    bool operator==(const PendingConnectTarget &) const = default;
};
