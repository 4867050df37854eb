#pragma once

#include <QString>

/// Whether a link is exactly what the vendor's purchase page looks like: https, the
/// vendor's host and nothing beside it, the path "/purchase", and each of "lang",
/// "webAccessToken" and "account" once with a value. It will be opened in the
/// user's browser with an access token in it, so nothing else may pass.
bool isPurchaseURL(const QString &text);
