#include "import/core/importdesigns.h"

namespace {
// ---- ListView1 ----
const ListColumn kOEList1[] = {{"#", 882},      {"Name", 5292, 500}, {"Email", 6350, 532}, {"hometel", 0},
                               {"notes", 0},    {"company", 0},      {"jobtitle", 0}};
const ListColumn kMSOList1[] = {{"#", 882},         {"Name", 5292, 500}, {"Email", 4411, 532}, {"hometel", 0},
                                {"notes", 0},       {"company", 0},      {"jobtitle", 0},      {"Category", 2928},
                                {"tel2", 2540},     {"mobile", 2540},    {"fax", 2540},        {"homeadd", 2540}};
const ListColumn kCsvList1[] = {{"#", 882},    {"Name", 5292, 500}, {"Email", 6350, 532}, {"hometel", 0},
                                {"notes", 0},  {"company", 0},      {"jobtitle", 0},      {"tel2", 0},
                                {"mobile", 0}, {"fax", 0},          {"mailing", 0}};

// ---- ListView2 ----
const ListColumn kList2Head[] = {{"#", 882},         {"Country", 2117, 508}, {"Category", 2117, 501},
                                 {"Name", 5292, 500}, {"Email", 3175, 532},  {"hometel", 0},
                                 {"notes", 0},        {"company", 0},        {"job", 0},
                                 {"countryindex", 0}, {"categoryindex", 0}};
const ListColumn kMSOList2Tail[] = {{"TelNo2", 2540}, {"mobile", 2540}, {"fax", 2540}, {"homeadd", 2540}};
const ListColumn kYahooList2Tail[] = {{"tel2", 0}, {"mobile", 0}, {"fax", 0}, {"mailing", 0}};
const ListColumn kIncrediList2Tail[] = {{"Tel2", 0}, {"Mobile", 0}, {"Fax", 0}, {"Mailing", 0}};

// ---- the fields a row carries: name, e-mail, first telephone, notes,
// company, job title, then the second telephone, mobile, fax, address ----
const CarriedField kOECarried[] = {{2, 3}, {3, 4}, {4, 5}, {5, 6, false}, {6, 7, false}, {7, 8, false}};
const CarriedField kMSOCarried[] = {{2, 3},  {3, 4},  {4, 5},         {5, 6},  {6, 7},  {7, 8}, {8, 2},
                                    {8, 10, false},   {9, 11}, {10, 12}, {11, 13}, {12, 14}};
const CarriedField kCsvCarried[] = {{2, 3}, {3, 4}, {4, 5},   {5, 6},   {6, 7},
                                    {7, 8}, {8, 11}, {9, 12}, {10, 13}, {11, 14}};

//                               category  empty  source  closes on  closes on  sorts  numbers  checks  cancel   record
//                               folder    list   failed  source     failed     at     after    in OK   shown in keys
//                                                message failure    load       load   add              commit
const ImportDesign kDesigns[] = {
    {"frmsync", "Import Outlook Express Address", kOEList1, {}, kOECarried,
                                 false,    611,   0,      false,     true,      true,  true,    false,  false,   RecordKeys::NameMailPhone},
    {"frmsync1", "Import Microsoft Outlook Address", kMSOList1, kMSOList2Tail, kMSOCarried,
                                 true,     0,     624,    false,     false,     true,  false,   false,  false,   RecordKeys::All},
    {"frmImportYahoo", "Import Address From Yahoo!", kCsvList1, kYahooList2Tail, kCsvCarried,
                                 false,    0,     0,      true,      false,     false, true,    true,   true,    RecordKeys::All},
    {"frmImportIncredi", "Import Address From IncrediMail", kCsvList1, kIncrediList2Tail, kCsvCarried,
                                 false,    0,     0,      true,      false,     false, false,   true,   false,   RecordKeys::All},
};
}  // namespace

const ImportDesign& ImportDesignOf(ImportKind kind) { return kDesigns[int(kind)]; }

std::span<const ListColumn> ListView2Head() { return kList2Head; }
