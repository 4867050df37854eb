#include "SimPlaces.h"

namespace {

// Continent codes are words: two letters would be taken for a country ("AF").
constexpr std::array<SimContinent, 6> kContinents{{
    {u"europe", u"Europe", 24},
    {u"north-america", u"North America", 105},
    {u"asia", u"Asia", 170},
    {u"oceania", u"Oceania", 265},
    {u"south-america", u"South America", 205},
    {u"africa", u"Africa", 150},
}};

constexpr SimCountry kCountries[] = {
    {u"DE", u"Germany", 0, 4, {u"Frankfurt", u"Berlin", u"Munich", u"Düsseldorf"}},
    {u"US",
     u"United States",
     1,
     8,
     {u"New York", u"Los Angeles", u"Chicago", u"Dallas", u"Miami", u"Seattle", u"San Jose",
      u"Atlanta"}},
    {u"GB", u"United Kingdom", 0, 4, {u"London", u"Manchester", u"Edinburgh", u"Glasgow"}},
    {u"NL", u"Netherlands", 0, 3, {u"Amsterdam", u"Rotterdam", u"Eindhoven"}},
    {u"JP", u"Japan", 2, 4, {u"Tokyo", u"Osaka", u"Fukuoka"}},
    {u"FR", u"France", 0, 3, {u"Paris", u"Marseille", u"Lyon"}},
    {u"SG", u"Singapore", 2, 3, {u"Singapore"}},
    {u"HK", u"Hong Kong", 2, 3, {u"Hong Kong"}},
    {u"CA", u"Canada", 1, 3, {u"Toronto", u"Montréal", u"Vancouver", u"Calgary"}},
    {u"AU", u"Australia", 3, 3, {u"Sydney", u"Melbourne", u"Perth", u"Brisbane"}},
    {u"CH", u"Switzerland", 0, 2, {u"Zurich", u"Geneva"}},
    {u"SE", u"Sweden", 0, 2, {u"Stockholm", u"Gothenburg", u"Malmö"}},
    {u"TW", u"Taiwan", 2, 2, {u"Taipei", u"Taichung"}},
    {u"KR", u"South Korea", 2, 2, {u"Seoul", u"Busan"}},
    {u"IN", u"India", 2, 3, {u"Mumbai", u"Delhi", u"Chennai", u"Bengaluru"}},
    {u"BR", u"Brazil", 4, 3, {u"São Paulo", u"Rio de Janeiro", u"Fortaleza"}},
    {u"IT", u"Italy", 0, 2, {u"Milan", u"Rome", u"Palermo"}},
    {u"ES", u"Spain", 0, 2, {u"Madrid", u"Barcelona", u"Valencia"}},
    {u"PL", u"Poland", 0, 2, {u"Warsaw", u"Kraków", u"Gdańsk"}},
    {u"NO", u"Norway", 0, 1, {u"Oslo", u"Bergen"}},
    {u"DK", u"Denmark", 0, 1, {u"Copenhagen", u"Aarhus"}},
    {u"FI", u"Finland", 0, 1, {u"Helsinki", u"Tampere"}},
    {u"IE", u"Ireland", 0, 1, {u"Dublin", u"Cork"}},
    {u"AT", u"Austria", 0, 1, {u"Vienna", u"Graz"}},
    {u"BE", u"Belgium", 0, 1, {u"Brussels", u"Antwerp"}},
    {u"CZ", u"Czechia", 0, 1, {u"Prague", u"Brno"}},
    {u"PT", u"Portugal", 0, 1, {u"Lisbon", u"Porto"}},
    {u"RO", u"Romania", 0, 1, {u"Bucharest", u"Cluj-Napoca"}},
    {u"MX", u"Mexico", 1, 1, {u"Mexico City", u"Querétaro", u"Guadalajara"}},
    {u"ZA", u"South Africa", 5, 1, {u"Johannesburg", u"Cape Town"}},
    {u"TR", u"Türkiye", 2, 1, {u"Istanbul", u"Ankara"}},
    {u"AE", u"United Arab Emirates", 2, 1, {u"Dubai", u"Abu Dhabi"}},
    {u"IL", u"Israel", 2, 1, {u"Tel Aviv", u"Haifa"}},
    {u"NZ", u"New Zealand", 3, 1, {u"Auckland", u"Wellington"}},
    {u"TH", u"Thailand", 2, 1, {u"Bangkok", u"Chiang Mai"}},
    {u"VN", u"Vietnam", 2, 1, {u"Hanoi", u"Ho Chi Minh City"}},
    {u"ID", u"Indonesia", 2, 1, {u"Jakarta", u"Surabaya"}},
    {u"MY", u"Malaysia", 2, 1, {u"Kuala Lumpur", u"Johor Bahru"}},
    {u"PH", u"Philippines", 2, 1, {u"Manila", u"Cebu"}},
    {u"AR", u"Argentina", 4, 1, {u"Buenos Aires", u"Córdoba"}},
    {u"CL", u"Chile", 4, 1, {u"Santiago", u"Valparaíso"}},
    {u"CO", u"Colombia", 4, 1, {u"Bogotá", u"Medellín"}},
    {u"UA", u"Ukraine", 0, 1, {u"Kyiv", u"Lviv"}},
    {u"HU", u"Hungary", 0, 1, {u"Budapest", u"Debrecen"}},
    {u"GR", u"Greece", 0, 1, {u"Athens", u"Thessaloniki"}},
    {u"BG", u"Bulgaria", 0, 1, {u"Sofia", u"Plovdiv"}},
    {u"RS", u"Serbia", 0, 1, {u"Belgrade", u"Novi Sad"}},
    {u"HR", u"Croatia", 0, 1, {u"Zagreb", u"Split"}},
    {u"SK", u"Slovakia", 0, 1, {u"Bratislava", u"Košice"}},
    {u"SI", u"Slovenia", 0, 1, {u"Ljubljana", u"Maribor"}},
    {u"EE", u"Estonia", 0, 1, {u"Tallinn", u"Tartu"}},
    {u"LV", u"Latvia", 0, 1, {u"Riga"}},
    {u"LT", u"Lithuania", 0, 1, {u"Vilnius", u"Kaunas"}},
    {u"LU", u"Luxembourg", 0, 1, {u"Luxembourg"}},
    {u"IS", u"Iceland", 0, 1, {u"Reykjavík"}},
    {u"MD", u"Moldova", 0, 1, {u"Chișinău"}},
    {u"GE", u"Georgia", 2, 1, {u"Tbilisi", u"Batumi"}},
    {u"KZ", u"Kazakhstan", 2, 1, {u"Almaty", u"Astana"}},
    {u"EG", u"Egypt", 5, 1, {u"Cairo", u"Alexandria"}},
    {u"NG", u"Nigeria", 5, 1, {u"Lagos", u"Abuja"}},
    {u"KE", u"Kenya", 5, 1, {u"Nairobi", u"Mombasa"}},
    {u"MA", u"Morocco", 5, 1, {u"Casablanca", u"Rabat"}},
    {u"PE", u"Peru", 4, 1, {u"Lima", u"Arequipa"}},
    {u"EC", u"Ecuador", 4, 1, {u"Quito", u"Guayaquil"}},
    {u"UY", u"Uruguay", 4, 1, {u"Montevideo"}},
    {u"CR", u"Costa Rica", 1, 1, {u"San José"}},
    {u"PA", u"Panama", 1, 1, {u"Panama City"}},
};

} // namespace

std::span<const SimContinent> simContinents()
{
    return kContinents;
}

std::span<const SimCountry> simCountries()
{
    return kCountries;
}
