// SPDX-License-Identifier: GPL-3.0-or-later

#include "output/HtmlSheets.h"

#include "output/CardWalk.h"
#include "output/ImageNames.h"
#include "platform/LineWriter.h"
#include "platform/Numbers.h"

#include <QStringList>

namespace deckforge {

namespace {

constexpr int SmallSlots = 6; ///< images on a page of standard cards or playing pieces
constexpr int LargeSlots = 3;

/// A page and its images.
struct Page {
    const SetHeader& Header;
    const char* NamePrefix;
    QString Title;
    QStringList Images = {};
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
    const auto image = [&](qsizetype slot) {
        if (slot < page.Images.size())
            WriteImage(out, page, page.Images[slot]);
    };
    const auto row = [&](qsizetype first) {
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
    for (const QString& image : page.Images) {
        WriteLines(out, {"<TR>", "<TD>"});
        WriteImage(out, page, image);
        WriteLines(out, {"</TD>", "</TR><TR><TD><BR>&nbsp;</TD></TR>"});
    }
}

/// What differs between the pages of the kinds.
struct HtmlRow {
    CardKind Kind;
    int Slots;
    const char* PagePrefix;  ///< before the set's name in file names
    const char* TitlePrefix; ///< before the set's name in file names and titles
    const char* ImagePrefix; ///< of image names; empty for standard cards
};

const HtmlRow& RowOf(HtmlPages pages)
{
    static constexpr HtmlRow rows[] = {{.Kind = CardKind::Standard,
                                        .Slots = SmallSlots,
                                        .PagePrefix = "",
                                        .TitlePrefix = "",
                                        .ImagePrefix = ""},
                                       {.Kind = CardKind::Large,
                                        .Slots = LargeSlots,
                                        .PagePrefix = "Large ",
                                        .TitlePrefix = "",
                                        .ImagePrefix = "Large "},
                                       {.Kind = CardKind::Character,
                                        .Slots = LargeSlots,
                                        .PagePrefix = "Character ",
                                        .TitlePrefix = "",
                                        .ImagePrefix = "Character "},
                                       {.Kind = CardKind::Character,
                                        .Slots = SmallSlots,
                                        .PagePrefix = "",
                                        .TitlePrefix = "Character Piece ",
                                        .ImagePrefix = "Character Piece "}};
    return rows[static_cast<std::size_t>(pages)];
}

/// The name of a saved image.
/// Kept: of a standard card without the number there is no space between prefix and name, and outer spaces
/// stay, unlike in the saved image's name.
QString ImageOf(const SetHeader& header, const HtmlRow& row, const QString& fileName, int index, int count)
{
    if (row.Kind != CardKind::Standard)
        return ImageName(header, QLatin1String(row.ImagePrefix), fileName, index, count);
    const QString number = header.FileNr ? QStringLiteral(" %1 ").arg(PaddedNumber(index, count)) : QString();
    return header.FilenamePrefix + number + fileName + QLatin1Char('.') + ImageExtension(header.SaveFormat);
}

FilePath PathOf(const Page& page)
{
    return {page.Header.SaveTo, PageName(page, page.Number)};
}

/// A page that cannot be written is reported.
void WritePage(const Page& page, RunReport& report, const HtmlRow& row)
{
    const auto write = [&](const QString& path) {
        LineWriter out(path);
        WriteHead(out, page);
        if (row.Slots == SmallSlots)
            WriteSix(out, page);
        else
            WriteThree(out, page);
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
std::optional<qint64> ImageCount(const CardList<Record>& cards)
{
    qint64 sum = 0;
    for (int i = 1; i <= cards.Count(); ++i) {
        if (cards[i].Filename.isEmpty())
            return std::nullopt;
        sum += CopiesOf(cards[i]);
    }
    return sum;
}

template <class Record>
std::optional<int> WritePages(const CardSet& set, RunReport& report, const HtmlRow& row,
                              const CardList<Record>& cards)
{
    const std::optional<qint64> imageCount = ImageCount(cards);
    if (!imageCount)
        return std::nullopt;
    const int count = cards.Count();
    const qint64 pages = *imageCount / row.Slots + 1;
    Page page{.Header = set.Header,
              .NamePrefix = row.PagePrefix,
              .Title = QLatin1String(row.TitlePrefix) + set.Header.SetName,
              .Count = ToInt16(static_cast<double>(pages))};
    page.Links = LinksOf(page);
    for (int i = 1; i <= count; ++i) {
        const int copies = CopiesOf(cards[i]);
        report.Begin(set, row.Kind, static_cast<int16>(i));
        for (int k = 1; k <= copies; ++k) {
            if (page.Images.isEmpty())
                ++page.Number;
            page.Images += ImageOf(set.Header, row, cards[i].Filename, i, count);
            if (page.Images.size() == row.Slots || (i == count && k == copies)) {
                WritePage(page, report, row);
                page.Images.clear();
            }
        }
    }
    if (!page.Images.isEmpty()) {
        report.Add(FixFileName(page.Header, PathOf(page).Full()),
                   QStringLiteral("Not written, since the last card has no copies"));
    }
    return page.Number;
}

} // namespace

std::optional<int> WriteHtml(const CardSet& set, RunReport& report, HtmlPages pages)
{
    const HtmlRow& row = RowOf(pages);
    return WithListOf(set, row.Kind, [&](const auto& cards) { return WritePages(set, report, row, cards); });
}

} // namespace deckforge
