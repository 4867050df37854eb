#pragma once

#include <QStringView>

#include <array>
#include <span>

/// A country where the simulated service has servers.
struct SimCountry
{
    QStringView code; ///< ISO 3166 two-letter code.
    QStringView name;
    int continent = 0; ///< Index into simContinents().
    int weight = 1;    ///< How many servers it gets in comparison with others.
    std::array<QStringView, 8> cities;
};

/// A part of the world; groups the countries.
struct SimContinent
{
    QStringView code;
    QStringView name;
    int pingMs = 0; ///< Typical round trip from the simulated machine.
};

std::span<const SimContinent> simContinents();
std::span<const SimCountry> simCountries();
