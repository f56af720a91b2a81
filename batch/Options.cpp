// SPDX-License-Identifier: GPL-3.0-or-later

#include "batch/Options.h"

#include "core/Vocabulary.h"
#include "platform/Paths.h"

#include <QFileInfo>

namespace deckforge {

const char Usage[] = R"(Usage:
  deckforge-batch new OUT.dkf
  deckforge-batch convert SET.dkf OUT.dkf
  deckforge-batch images SET.dkf [--kind card|large|character|back|all] [--to DIR] [--format bmp|jpg|gif]
                         [--scale N] [--save] [--twin]
  deckforge-batch sheets SET.dkf --kind card|large --columns C --rows R [--to DIR] [--format bmp|jpg|gif]
  deckforge-batch html SET.dkf [--kind card|large|character|piece|all] [--to DIR]
  deckforge-batch text SET.dkf OUT.txt
  deckforge-batch statistics SET.dkf
  deckforge-batch print SET.dkf OUT.pdf --kind card|large|character --index N [--resolution DOTS]
  deckforge-batch backs DIR
  deckforge-batch pack SET.dkf FOLDER
  deckforge-batch --help | --version

  new         writes a new card set with one card
  convert     reads a card set of any version and writes it in the current one
  images      writes the image of every card to the folder that the set names
  sheets      writes sheets of 1 to 6 columns and 1 to 8 rows of cards there, each card with its copies
  html        writes pages there that show the images of the cards; the cards need file names, see --save
  text        writes a listing of the set's texts
  statistics  prints how many cards of each type and back there are
  print       writes the page that the window prints of one card, with its back, as a PDF file
  backs       writes the built-in card backs to a folder
  pack        writes a copy of the set with all its pictures to an empty or new folder, which works anywhere

  --kind      the kind of card; all where it is not given
  --to        the folder to write to, for this run; it is made if it is not there
  --format    the format of the images, for this run
  --scale     how many pixels an image has for each pixel of the card in both directions, from 1 to 16
  --index     the number of the card among those of its kind
  --resolution  how many dots to the inch the page has, from 72 to 2400; 600 where it is not given. Margin
              and gaps of the page count dots
  --twin      with --kind back and a scale: also writes the images at scale 1, whose print twins the others are
  --save      writes the set back with the file names that the run gave to its cards

Results go to standard output, message boxes and problems to standard error. A problem is a line such as
"card 12 "Wolf": /art/wolf.bmp: File not found". Exit status: 0 done and complete, 1 something was reported,
2 wrong use.
)";

QString AbsolutePath(const QString& path)
{
    return QFileInfo(path).absoluteFilePath();
}

int NumberOption(const QCommandLineParser& parser, const char* name, int most, int least)
{
    bool isNumber = false;
    const int number = parser.value(QString::fromLatin1(name)).toInt(&isNumber);
    if (!isNumber || number < least || number > most)
        throw WrongUse{QStringLiteral("--%1 takes a number from %2 to %3.").arg(name).arg(least).arg(most)};
    return number;
}

namespace {

int16 FormatNamed(const QString& name)
{
    const qsizetype row = SaveFormats().indexOf(name.toUpper());
    if (row < 0)
        throw WrongUse{QStringLiteral("There is no image format \"%1\".").arg(name)};
    return static_cast<int16>(row);
}

} // namespace

void RunSettings::ApplyTo(SetHeader& header) const
{
    header.SaveTo = SaveTo.value_or(header.SaveTo);
    header.SaveFormat = SaveFormat.value_or(header.SaveFormat);
}

RunSettings SettingsFrom(const QCommandLineParser& parser)
{
    RunSettings settings;
    if (parser.isSet(QStringLiteral("format")))
        settings.SaveFormat = FormatNamed(parser.value(QStringLiteral("format")));
    if (parser.isSet(QStringLiteral("to")))
        settings.SaveTo = WithSeparator(AbsolutePath(parser.value(QStringLiteral("to"))));
    return settings;
}

void AddOptions(QCommandLineParser& parser)
{
    const auto option = [&](const char* name, const char* value, const char* defaultValue) {
        parser.addOption(QCommandLineOption(QString::fromLatin1(name), {}, QString::fromLatin1(value),
                                            QString::fromLatin1(defaultValue)));
    };
    option("help", "", "");
    option("version", "", "");
    option("kind", "KIND", "all");
    option("columns", "C", "");
    option("rows", "R", "");
    option("index", "N", "");
    option("resolution", "DOTS", "600");
    option("to", "DIR", "");
    option("format", "FORMAT", "");
    option("scale", "N", "1");
    option("save", "", "");
    option("twin", "", "");
}

} // namespace deckforge
