// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/Records.h"

#include <QCommandLineParser>
#include <QString>
#include <optional>
#include <vector>

namespace deckforge {

// The command line of deckforge-batch.

extern const char Usage[];

/// A wrong command line; the text says why.
struct WrongUse {
    QString Text;
};

/// All options of all commands.
void AddOptions(QCommandLineParser& parser);

[[nodiscard]] QString AbsolutePath(const QString& path);

/// The number that the option gives; one outside the limits is wrong use.
[[nodiscard]] int NumberOption(const QCommandLineParser& parser, const char* name, int most, int least = 1);

/// Options that override settings of the set in this run.
struct RunSettings {
    std::optional<QString> SaveTo;
    std::optional<int16> SaveFormat;

    void ApplyTo(SetHeader& header) const;
};

[[nodiscard]] RunSettings SettingsFrom(const QCommandLineParser& parser);

/// What `--kind` names, of one command.
template <class Value>
struct KindOption {
    const char* Kind;
    Value What;
};

/// The kinds named by the option, out of those of the command; all if it is not given.
template <class Value, std::size_t size>
std::vector<Value> KindsFrom(const QCommandLineParser& parser, const KindOption<Value> (&options)[size])
{
    const QString kind = parser.value(QStringLiteral("kind"));
    std::vector<Value> kinds;
    for (const KindOption<Value>& option : options) {
        if (kind == QLatin1String("all") || kind == QLatin1String(option.Kind))
            kinds.push_back(option.What);
    }
    if (kinds.empty())
        throw WrongUse{QStringLiteral("There is no kind \"%1\" here.").arg(kind)};
    return kinds;
}

} // namespace deckforge
