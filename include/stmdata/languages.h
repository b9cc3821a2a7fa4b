/* The languages of the library's texts, as rows for a caller that offers a choice or turns the
   texts into Unicode. The library and its monitors are built from the same rows. */
#ifndef STMDATA_LANGUAGES_H
#define STMDATA_LANGUAGES_H

#include <stdint.h>

/* A language that PatSetLocale knows. */
typedef struct LocaleRow {
  const char* code;    /* for PatSetLocale, which wants a copy that it may write to */
  const char* locales; /* the ISO 639-1 codes that locale names begin with; the first is its own */
  uint16_t id;         /* the system's language id */
  uint16_t codePage;   /* of the texts that follow PatSetLocale */
  const char* name;    /* in the language itself, UTF-8 */
} LocaleRow;

/* Every language, the one that stands for unknown codes first. Letters beyond ASCII are written as
   their bytes, so that no compiler's character set matters. */
/* clang-format off */
#ifdef __cplusplus
inline constexpr LocaleRow LocaleTable[] = {
#else
static const LocaleRow LocaleTable[] = {
#endif
    /* code  locales   id      code page name */
    {"EN",  "en",       0x0409, 1252,     "English"},                  /* United States */
    {"DE",  "de",       0x0407, 1252,     "Deutsch"},                  /* German */
    {"FR",  "fr",       0x040C, 1252,     "Fran\xC3\xA7" "ais"},       /* French */
    {"IT",  "it",       0x0410, 1252,     "Italiano"},                 /* Italian */
    {"ES",  "es",       0x040A, 1252,     "Espa\xC3\xB1ol"},           /* Spanish */
    {"NL",  "nl",       0x0413, 1252,     "Nederlands"},               /* Dutch */
    {"SV",  "sv",       0x041D, 1252,     "Svenska"},                  /* Swedish */
    {"DA",  "da",       0x0406, 1252,     "Dansk"},                    /* Danish */
    {"NO",  "nb no nn", 0x0414, 1252,     "Norsk"},                    /* Norwegian, Bokmaal */
    {"CS",  "cs",       0x0405, 1250,     "\xC4\x8C" "e\xC5\xA1tina"}, /* Czech */
    {"HU",  "hu",       0x040E, 1250,     "Magyar"},                   /* Hungarian */
    {"PT",  "pt",       0x0416, 1252,     "Portugu\xC3\xAAs (Brasil)"}, /* of Brazil */
    {"PL",  "pl",       0x0415, 1250,     "Polski"},                   /* Polish */
    {"FI",  "fi",       0x040B, 1252,     "Suomi"},                    /* Finnish */
    {"JP",  "ja",       0x0411, 932,      "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E"}, /* Japanese */
};
/* clang-format on */

#endif
