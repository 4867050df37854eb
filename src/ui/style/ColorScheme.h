#pragma once

/// Whether a desktop or the user wants light text on dark ground or the reverse.
/// Unknown stands for a desktop that names no wish; it is shown as Light.
enum class ColorScheme { Unknown, Light, Dark };
