// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PrinterResolution.h"

#ifdef DECKFORGE_HAS_CUPS
#include <cmath>
#include <cups/cups.h>
#include <memory>
#endif

namespace deckforge {

namespace {

constexpr int DefaultResolution = 600;

#ifdef DECKFORGE_HAS_CUPS
struct FreeQueue {
    void operator()(cups_dest_t* queue) const { cupsFreeDests(1, queue); }
};

struct FreeInfo {
    void operator()(cups_dinfo_t* info) const { cupsFreeDestInfo(info); }
};

/// 0 if the queue does not specify it.
int ConfiguredResolution(const QString& queue)
{
    constexpr double centimetresPerInch = 2.54;
    const std::unique_ptr<cups_dest_t, FreeQueue> found(
        cupsGetNamedDest(CUPS_HTTP_DEFAULT, qUtf8Printable(queue.section(QLatin1Char('/'), 0, 0)), nullptr));
    if (!found)
        return 0;
    const std::unique_ptr<cups_dinfo_t, FreeInfo> info(cupsCopyDestInfo(CUPS_HTTP_DEFAULT, found.get()));
    if (!info)
        return 0;
    ipp_attribute_t* const resolution =
        cupsFindDestDefault(CUPS_HTTP_DEFAULT, found.get(), info.get(), "printer-resolution");
    int down = 0;
    ipp_res_t unit = IPP_RES_PER_INCH;
    const int across = ippGetResolution(resolution, 0, &down, &unit);
    return unit == IPP_RES_PER_CM ? static_cast<int>(std::lround(across * centimetresPerInch)) : across;
}
#else
int ConfiguredResolution(const QString& /*queue*/)
{
    return 0;
}
#endif

} // namespace

int PrinterResolution(const QString& queue)
{
    const int configured = ConfiguredResolution(queue);
    return configured > 0 ? configured : DefaultResolution;
}

} // namespace deckforge
