// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/Ratio.h"
#include "core/modInfo.h"
#include "files/modFile.h"

#include <QTemporaryDir>
#include <fcntl.h>
#include <fstream>
#include <unistd.h>
#include <vector>

// Reading and writing a set, compared with the same bytes as plain lines through the standard library, synced
// to the disk.

namespace deckforge {

namespace {

CardSet SetOf(int count)
{
    CardSet set;
    InitSet(set);
    for (int i = 2; i <= count; ++i)
        AddElement<Card>(set);
    for (int i = 1; i <= count; ++i) {
        Card& card = set.Cards[i];
        card.Picture = QStringLiteral("/home/player/varnhelm/pictures/card %1.jpg").arg(i);
        card.PictureLeft = -15 * (i % 40);
        card.Info =
            QStringLiteral("Roll one die for each follower.\r\nOn a 1 or 2 it leaves you; on a 6 you gain "
                           "one strength and may move again in the next turn.");
        card.BoldText = QStringLiteral("STRENGTH %1").arg(i % 12);
    }
    return set;
}

/// A set file in a temporary folder.
struct Stored {
    explicit Stored(int count) : Set(SetOf(count)), Path(Folder.filePath(QStringLiteral("set.dkf")))
    {
        WriteDKF(Set, Path);
    }

    QTemporaryDir Folder;
    CardSet Set;
    QString Path;
};

std::vector<std::string> ReadLines(const std::string& path)
{
    std::vector<std::string> lines;
    std::ifstream in(path, std::ios::binary);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

void WriteLines(const std::string& path, const std::vector<std::string>& lines)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    for (const std::string& line : lines)
        out << line << '\n';
    out.close();
    const int handle = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
    ::fsync(handle);
    ::close(handle);
}

void ReadSet(benchmark::State& state)
{
    Stored stored(static_cast<int>(state.range(0)));
    MeasureBeside(
        state,
        [&] {
            CardSet set;
            benchmark::DoNotOptimize(ReadDKF(set, stored.Path));
        },
        [&] { benchmark::DoNotOptimize(ReadLines(stored.Path.toStdString())); });
}

void WriteSet(benchmark::State& state)
{
    Stored stored(static_cast<int>(state.range(0)));
    const QString target = stored.Folder.filePath(QStringLiteral("written.dkf"));
    const std::string bare = stored.Folder.filePath(QStringLiteral("lines")).toStdString();
    const std::vector<std::string> lines = ReadLines(stored.Path.toStdString());
    MeasureBeside(
        state,
        [&] {
            ::unlink(target.toUtf8().constData());
            WriteDKF(stored.Set, target);
        },
        [&] {
            ::unlink(bare.c_str());
            WriteLines(bare, lines);
        });
}

void Sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(100)->Arg(2000)->Arg(32767)->Unit(benchmark::kMillisecond)->UseManualTime();
}

BENCHMARK(ReadSet)->Apply(Sizes);
BENCHMARK(WriteSet)->Apply(Sizes);

} // namespace

} // namespace deckforge
