#include "addin/Languages.h"

namespace
{

// Both kinds of Chinese set the same locale; Brazilian Portuguese sets plain Portuguese.
// clang-format off
constexpr Language Languages[] = {
    { 1, QLocale::German,     ":/3DPH/3DPH_german.qm",            "German"},
    { 2, QLocale::English,    ":/3DPH/3DPH_en.qm",                "English"},
    { 3, QLocale::Turkish,    ":/3DPH/3DPH_turkish.qm",           "Turkish"},
    { 5, QLocale::Polish,     ":/3DPH/3DPH_polish.qm",            "Polish"},
    { 6, QLocale::Japanese,   ":/3DPH/3DPH_japanese.qm",          "Japanese"},
    { 7, QLocale::French,     ":/3DPH/3DPH_french.qm",            "French"},
    { 8, QLocale::Chinese,    ":/3DPH/3DPH_chinese.qm",           "Chinese"},
    { 9, QLocale::Chinese,    ":/3DPH/3DPH_chinese-simple.qm",    "Chinese-simplified"},
    {10, QLocale::Italian,    ":/3DPH/3DPH_italian.qm",           "Italian"},
    {11, QLocale::Spanish,    ":/3DPH/3DPH_spanish.qm",           "Spanish"},
    {13, QLocale::Korean,     ":/3DPH/3DPH_korean.qm",            "Korean"},
    {18, QLocale::Russian,    ":/3DPH/3DPH_russian.qm",           "Russian"},
    {19, QLocale::Portuguese, ":/3DPH/3DPH_portugese-brazil.qm",  "Portuguese-brazilian"},
    {20, QLocale::Czech,      nullptr,                            "Czech"},
};
// clang-format on

} // namespace

const Language* findLanguage(pvLanguage_e hostValue)
{
    for (const Language& language : Languages)
        if (language.hostValue == hostValue)
            return &language;
    return nullptr;
}
