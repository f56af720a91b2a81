#include "dialogs/PrinterResolution.h"

#include <cmath>
#include <cups/cups.h>
#include <memory>

namespace deckforge {

namespace {

constexpr int UsualResolution = 600;

struct FreeQueue {
    void operator()(cups_dest_t* queue) const { cupsFreeDests(1, queue); }
};

struct FreeInfo {
    void operator()(cups_dinfo_t* info) const { cupsFreeDestInfo(info); }
};

} // namespace

int PrinterResolution(const QString& queue)
{
    constexpr double centimetresPerInch = 2.54;
    const std::unique_ptr<cups_dest_t, FreeQueue> found(
        cupsGetNamedDest(CUPS_HTTP_DEFAULT, qUtf8Printable(queue.section(QLatin1Char('/'), 0, 0)), nullptr));
    if (!found)
        return UsualResolution;
    const std::unique_ptr<cups_dinfo_t, FreeInfo> info(cupsCopyDestInfo(CUPS_HTTP_DEFAULT, found.get()));
    if (!info)
        return UsualResolution;
    ipp_attribute_t* const resolution =
        cupsFindDestDefault(CUPS_HTTP_DEFAULT, found.get(), info.get(), "printer-resolution");
    int down = 0;
    ipp_res_t unit = IPP_RES_PER_INCH;
    const int across = ippGetResolution(resolution, 0, &down, &unit);
    if (across <= 0)
        return UsualResolution;
    return unit == IPP_RES_PER_CM ? static_cast<int>(std::lround(across * centimetresPerInch)) : across;
}

} // namespace deckforge
