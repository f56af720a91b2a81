// SPDX-License-Identifier: GPL-3.0-or-later

#include "output/HtmlSheets.h"

#include "core/modInfo.h"
#include "output/ImageNames.h"
#include "platform/LineWriter.h"
#include "platform/Numbers.h"

#include <QStringList>
#include <array>

namespace deckforge {

namespace {

constexpr int MaxSlots = 6;

/// A page and its images; an empty slot has none.
struct Page {
    const SetHeader& Header;
    const char* NamePrefix;
    QString Title;
    std::array<QString, MaxSlots> Images;
    int Number = 0;
    int Count = 0;
    QStringList Links = {}; ///< to each page
};

/// Escapes a name for a text or an attribute.
/// Kept: ampersands are not escaped; they cannot end either.
QString Escaped(QString name)
{
    return name.replace(QLatin1Char('<'), QStringLiteral("&lt;"))
        .replace(QLatin1Char('>'), QStringLiteral("&gt;"))
        .replace(QLatin1Char('"'), QStringLiteral("&quot;"));
}

QString PageName(const Page& page, int number)
{
    const QString digits =
        (QStringLiteral("000") + QString::number(number)).right(QString::number(page.Count).size());
    return QLatin1String(page.NamePrefix) + page.Title + QLatin1Char(' ') + digits + QStringLiteral(".htm");
}

QStringList LinksOf(const Page& page)
{
    QStringList links;
    for (int i = 1; i <= page.Count; ++i) {
        links += QStringLiteral("<A HREF=\"") + Escaped(FixFileName(page.Header, PageName(page, i))) +
                 QStringLiteral("\">") + QString::number(i) + QStringLiteral("</A>&nbsp;&nbsp;");
    }
    return links;
}

QString PageList(const Page& page)
{
    QStringList list = page.Links;
    if (page.Number <= list.size()) { // negative copies can make the count too low
        list[page.Number - 1] =
            QStringLiteral("<B>") + QString::number(page.Number) + QStringLiteral("</B>&nbsp;&nbsp;");
    }
    return list.join(QString());
}

void WriteLines(LineWriter& out, std::initializer_list<const char*> lines)
{
    for (const char* line : lines)
        out.Line(QString::fromLatin1(line));
}

void WriteHead(LineWriter& out, const Page& page)
{
    WriteLines(out, {"<HTML>", "<HEAD>"});
    out.Line(QStringLiteral("   <TITLE>") + Escaped(page.Title) + QStringLiteral("</TITLE>"));
    WriteLines(out, {"</HEAD>", "<BODY>", "", "<CENTER>"});
    out.Line(QStringLiteral("<P>Pages:&nbsp;&nbsp;") + PageList(page) + QStringLiteral("</P>"));
    WriteLines(out, {"<TABLE BORDER=0 BORDERCOLOR=\"#000000\" CELLPADDING=0 CELLSPACING=0>"});
}

void WriteFoot(LineWriter& out)
{
    WriteLines(out, {"</TABLE>", "</CENTER>", "", "</BODY>", "</HTML>"});
}

void WriteImage(LineWriter& out, const Page& page, const QString& image)
{
    WriteLines(out,
               {"   <TABLE BORDER=0 BORDERCOLOR=\"#000000\" CELLPADDING=0 CELLSPACING=0>", "       <TR>"});
    out.Line(QStringLiteral("           <TD><IMG SRC=\"") + Escaped(FixFileName(page.Header, image)) +
             QStringLiteral("\"></TD>"));
    WriteLines(out, {"       </TR>", "   </TABLE>"});
}

/// Three rows of two images.
/// Kept: empty slots have a table cell, and the gaps between the rows differ.
void WriteSix(LineWriter& out, const Page& page)
{
    const auto image = [&](std::size_t slot) {
        if (slot == 0 || !page.Images[slot].isEmpty())
            WriteImage(out, page, page.Images[slot]);
    };
    const auto row = [&](std::size_t first) {
        WriteLines(out, {"<TR>", "<TD>"});
        image(first);
        WriteLines(out, {"</TD>", "<TD>&nbsp;&nbsp;</TD>", "<TD>"});
        image(first + 1);
        WriteLines(out, {"</TD>", "</TR>"});
    };
    row(0);
    WriteLines(out, {"", "<TR><TD COLSPAN=3>&nbsp;&nbsp;</TD></TR>", ""});
    row(2);
    WriteLines(out, {"<TR><TD COLSPAN=3>&nbsp;</TD></TR>"});
    row(4);
    WriteLines(out, {""});
}

/// Up to three images, one below the other, without empty slots.
void WriteThree(LineWriter& out, const Page& page)
{
    constexpr std::size_t slots = 3;
    for (std::size_t slot = 0; slot < slots; ++slot) {
        if (slot > 0 && page.Images[slot].isEmpty())
            continue;
        WriteLines(out, {"<TR>", "<TD>"});
        WriteImage(out, page, page.Images[slot]);
        WriteLines(out, {"</TD>", "</TR><TR><TD><BR>&nbsp;</TD></TR>"});
    }
}

/// What differs between the pages of the kinds.
template <class Record>
struct HtmlRow {
    int (*Copies)(const Record&);
    int Slots;
    void (*WriteBody)(LineWriter&, const Page&);
    const char* PagePrefix;  ///< before the set's name in file names
    const char* TitlePrefix; ///< before the set's name in file names and titles
    QString (*Image)(const SetHeader&, const QString& fileName, int index, int count);
};

/// The prefix of image names and, if the set has FileNr, the number.
QString NumberPrefix(const SetHeader& header, int index, int count)
{
    if (!header.FileNr)
        return header.FilenamePrefix;
    return header.FilenamePrefix + QLatin1Char(' ') + PaddedNumber(index, count);
}

QString WithExtension(const SetHeader& header, const QString& name)
{
    return name + QLatin1Char('.') + ImageExtension(header.SaveFormat);
}

/// Kept: without the number there is no space between prefix and name, unlike in the saved image's name.
QString StandardImageName(const SetHeader& header, const QString& fileName, int index, int count)
{
    const QString gap = header.FileNr ? QStringLiteral(" ") : QString();
    return WithExtension(header, NumberPrefix(header, index, count) + gap + fileName);
}

template <const char* KindOfImage>
QString KindImageName(const SetHeader& header, const QString& fileName, int index, int count)
{
    return WithExtension(header, QLatin1String(KindOfImage) + NumberPrefix(header, index, count) +
                                     QLatin1Char(' ') + fileName);
}

constexpr char LargeImages[] = "Large ";
constexpr char CharacterImages[] = "Character ";
constexpr char PieceImages[] = "Character Piece ";

constexpr HtmlRow<Card> CardPages = {.Copies = [](const Card& card) { return int{card.Copies}; },
                                     .Slots = 6,
                                     .WriteBody = WriteSix,
                                     .PagePrefix = "",
                                     .TitlePrefix = "",
                                     .Image = StandardImageName};
constexpr HtmlRow<LargeCard> LargePages = {.Copies = [](const LargeCard& card) { return int{card.Copies}; },
                                           .Slots = 3,
                                           .WriteBody = WriteThree,
                                           .PagePrefix = "Large ",
                                           .TitlePrefix = "",
                                           .Image = KindImageName<LargeImages>};
constexpr HtmlRow<Character> CharacterPages = {.Copies = [](const Character&) { return 1; },
                                               .Slots = 3,
                                               .WriteBody = WriteThree,
                                               .PagePrefix = "Character ",
                                               .TitlePrefix = "",
                                               .Image = KindImageName<CharacterImages>};
constexpr HtmlRow<Character> PiecePages = {.Copies = [](const Character&) { return 1; },
                                           .Slots = 6,
                                           .WriteBody = WriteSix,
                                           .PagePrefix = "",
                                           .TitlePrefix = "Character Piece ",
                                           .Image = KindImageName<PieceImages>};

FilePath PathOf(const Page& page)
{
    return {page.Header.SaveTo, PageName(page, page.Number)};
}

/// A page that cannot be written is reported.
void WritePage(const Page& page, RunReport& report, void (*writeBody)(LineWriter&, const Page&))
{
    const auto write = [&](const QString& path) {
        LineWriter out(path);
        WriteHead(out, page);
        writeBody(out, page);
        WriteFoot(out);
        out.Close();
        return true;
    };
    try {
        WithMemoryAsFailure([&] {
            const QString path = PathToWrite(page.Header, PathOf(page));
            report.WriteFile(path, [&] { return write(path); });
        });
    } catch (const RunTimeError& error) {
        report.AddNotWritten(FixFileName(page.Header, PathOf(page).Full()), error.Description());
    }
}

/// The number of images with all copies; nothing if a card has no file name yet.
template <class Record>
std::optional<qint64> ImageCount(const CardSet& set, const HtmlRow<Record>& row)
{
    qint64 sum = 0;
    const CardList<Record>& cards = ListOf<Record>(set);
    for (int i = 1; i <= cards.Count(); ++i) {
        const Record& record = cards[i];
        if (record.Filename.isEmpty())
            return std::nullopt;
        sum += row.Copies(record);
    }
    return sum;
}

template <class Record>
std::optional<int> WritePages(const CardSet& set, RunReport& report, const HtmlRow<Record>& row)
{
    const std::optional<qint64> imageCount = ImageCount(set, row);
    if (!imageCount)
        return std::nullopt;
    const CardList<Record>& cards = ListOf<Record>(set);
    const int count = cards.Count();
    const qint64 pageCount = *imageCount / row.Slots + 1;
    Page page{.Header = set.Header,
              .NamePrefix = row.PagePrefix,
              .Title = QLatin1String(row.TitlePrefix) + set.Header.SetName,
              .Images = {},
              .Number = 0,
              .Count = ToInt16(static_cast<double>(pageCount))};
    page.Links = LinksOf(page);
    int slot = 0;
    for (int i = 1; i <= count; ++i) {
        const Record& record = cards[i];
        const int copies = row.Copies(record);
        report.Begin(set, KindOf<Record>, static_cast<int16>(i));
        for (int k = 1; k <= copies; ++k) {
            ++slot;
            if (slot == 1) {
                ++page.Number;
                page.Images = {};
            }
            page.Images[static_cast<std::size_t>(slot) - 1] =
                row.Image(set.Header, record.Filename, i, count);
            if (slot == row.Slots || (i == count && k == copies)) {
                WritePage(page, report, row.WriteBody);
                slot = 0;
            }
        }
    }
    if (slot > 0) {
        report.Add(FixFileName(page.Header, PathOf(page).Full()),
                   QStringLiteral("Not written, since the last card has no copies"));
    }
    return page.Number;
}

} // namespace

std::optional<int> WriteHtml(const CardSet& set, RunReport& report, HtmlPages pages)
{
    switch (pages) {
    case HtmlPages::LargeCards:
        return WritePages(set, report, LargePages);
    case HtmlPages::Characters:
        return WritePages(set, report, CharacterPages);
    case HtmlPages::Pieces:
        return WritePages(set, report, PiecePages);
    case HtmlPages::Cards:
        break;
    }
    return WritePages(set, report, CardPages);
}

} // namespace deckforge
