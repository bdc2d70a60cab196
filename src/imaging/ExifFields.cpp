#include "imaging/ExifFields.h"

#include <QRegularExpression>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <libexif/exif-data.h>
#include <memory>

namespace tembra {

namespace {

constexpr double metersPerInch = 0.0254;
constexpr qsizetype longestText = 256;
const QByteArrayView identifier("Exif\0\0", 6);

struct Release {
    void operator()(ExifData *data) const { exif_data_unref(data); }
};
using Data = std::unique_ptr<ExifData, Release>;

const ExifEntry *entry(const Data &data, ExifIfd directory, ExifTag tag, ExifFormat format) {
    const ExifEntry *found = exif_content_get_entry(data->ifd[directory], tag);
    const bool isUsable = found && found->format == format && found->components > 0 && found->data &&
                          found->size >= found->components * exif_format_get_size(format);
    return isUsable ? found : nullptr;
}

int number(const Data &data, ExifIfd directory, ExifTag tag, int fallback) {
    const ExifEntry *found = entry(data, directory, tag, EXIF_FORMAT_SHORT);
    return found ? exif_get_short(found->data, exif_data_get_byte_order(data.get())) : fallback;
}

QString text(const Data &data, ExifIfd directory, ExifTag tag) {
    const ExifEntry *found = entry(data, directory, tag, EXIF_FORMAT_ASCII);
    if (!found)
        return {};
    const char *characters = reinterpret_cast<const char *>(found->data);
    const auto length = static_cast<qsizetype>(::strnlen(characters, found->size));
    return QString::fromUtf8(characters, length).left(longestText).trimmed();
}

double ratio(const Data &data, ExifTag tag) {
    const ExifEntry *found = entry(data, EXIF_IFD_0, tag, EXIF_FORMAT_RATIONAL);
    if (!found)
        return 0;
    const ExifRational value = exif_get_rational(found->data, exif_data_get_byte_order(data.get()));
    return value.denominator == 0 ? 0 : static_cast<double>(value.numerator) / value.denominator;
}

std::optional<QSize> density(const Data &data) {
    constexpr int perInch = 2;
    constexpr int perCentimeter = 3;
    constexpr double most = 1e8;
    const int unit = number(data, EXIF_IFD_0, EXIF_TAG_RESOLUTION_UNIT, perInch);
    if (unit != perInch && unit != perCentimeter)
        return std::nullopt;
    const double factor = unit == perInch ? 1 / metersPerInch : 100;
    const double across = ratio(data, EXIF_TAG_X_RESOLUTION) * factor;
    const double down = ratio(data, EXIF_TAG_Y_RESOLUTION) * factor;
    if (across < 1 || down < 1 || across > most || down > most)
        return std::nullopt;
    return QSize(static_cast<int>(std::lround(across)), static_cast<int>(std::lround(down)));
}

// A new entry of the given size, its content zeros.
ExifEntry *add(const Data &data, ExifIfd directory, ExifTag tag, ExifFormat format,
               unsigned long components) {
    ExifEntry *added = exif_entry_new();
    const std::size_t size = components * exif_format_get_size(format);
    added->tag = tag;
    added->format = format;
    added->components = components;
    added->size = static_cast<unsigned>(size);
    // libexif releases it by free().
    added->data = static_cast<unsigned char *>(std::calloc(size, 1));
    Q_CHECK_PTR(added->data);
    exif_content_add_entry(data->ifd[directory], added);
    exif_entry_unref(added);
    return added;
}

void addNumber(const Data &data, ExifIfd directory, ExifTag tag, int value) {
    const ExifEntry *added = add(data, directory, tag, EXIF_FORMAT_SHORT, 1);
    exif_set_short(added->data, exif_data_get_byte_order(data.get()), static_cast<ExifShort>(value));
}

void addText(const Data &data, ExifIfd directory, ExifTag tag, const QByteArray &text) {
    const ExifEntry *added =
        add(data, directory, tag, EXIF_FORMAT_ASCII, static_cast<unsigned long>(text.size()) + 1);
    std::memcpy(added->data, text.constData(), static_cast<std::size_t>(text.size()));
}

void addDensity(const Data &data, ExifTag tag, int dotsPerMeter) {
    constexpr unsigned denominator = 100;
    const ExifEntry *added = add(data, EXIF_IFD_0, tag, EXIF_FORMAT_RATIONAL, 1);
    const auto numerator = static_cast<ExifLong>(std::lround(dotsPerMeter * metersPerInch * denominator));
    exif_set_rational(added->data, exif_data_get_byte_order(data.get()), {numerator, denominator});
}

bool isExifTime(const QString &time) {
    static const QRegularExpression format(QStringLiteral("^\\d{4}:\\d\\d:\\d\\d \\d\\d:\\d\\d:\\d\\d$"));
    return format.match(time).hasMatch();
}

} // namespace

ExifFields readExif(QByteArrayView tiff) {
    ExifFields fields;
    const Data data(exif_data_new());
    if (!data || tiff.size() > 65'536)
        return fields;
    // What is not there would be made up otherwise.
    exif_data_unset_option(data.get(), EXIF_DATA_OPTION_FOLLOW_SPECIFICATION);
    QByteArray bytes;
    bytes.append(identifier);
    bytes.append(tiff);
    exif_data_load_data(data.get(), reinterpret_cast<const unsigned char *>(bytes.constData()),
                        static_cast<unsigned>(bytes.size()));
    const int orientation = number(data, EXIF_IFD_0, EXIF_TAG_ORIENTATION, 1);
    fields.orientation = orientation >= 1 && orientation <= 8 ? orientation : 1;
    fields.metadata.dotsPerMeter = density(data);
    fields.metadata.software = text(data, EXIF_IFD_0, EXIF_TAG_SOFTWARE);
    fields.metadata.creationTime = text(data, EXIF_IFD_EXIF, EXIF_TAG_DATE_TIME_ORIGINAL);
    if (fields.metadata.creationTime.isEmpty())
        fields.metadata.creationTime = text(data, EXIF_IFD_0, EXIF_TAG_DATE_TIME);
    return fields;
}

QByteArray writeExif(const PictureMetadata &metadata) {
    const Data data(exif_data_new());
    Q_CHECK_PTR(data.get());
    exif_data_set_byte_order(data.get(), EXIF_BYTE_ORDER_INTEL);
    if (metadata.dotsPerMeter) {
        addDensity(data, EXIF_TAG_X_RESOLUTION, metadata.dotsPerMeter->width());
        addDensity(data, EXIF_TAG_Y_RESOLUTION, metadata.dotsPerMeter->height());
        addNumber(data, EXIF_IFD_0, EXIF_TAG_RESOLUTION_UNIT, 2);
    }
    if (!metadata.software.isEmpty())
        addText(data, EXIF_IFD_0, EXIF_TAG_SOFTWARE, metadata.software.toUtf8());
    if (isExifTime(metadata.creationTime))
        addText(data, EXIF_IFD_EXIF, EXIF_TAG_DATE_TIME_ORIGINAL, metadata.creationTime.toLatin1());
    addNumber(data, EXIF_IFD_EXIF, EXIF_TAG_COLOR_SPACE, 1);
    unsigned char *bytes = nullptr;
    unsigned size = 0;
    exif_data_save_data(data.get(), &bytes, &size);
    QByteArray result(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    std::free(bytes);
    return result;
}

} // namespace tembra
