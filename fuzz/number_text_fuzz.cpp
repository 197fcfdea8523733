// Number fields: any text read as a number, any number shown as a text.

#include "ADMLibrary/ADM_Mac64/NumberText.h"
#include "fuzz/Bytes.h"

namespace {

void show_and_read(float shown) {
    char text[adm::max_number_text];
    std::memset(text, 'x', sizeof text);
    adm::float_to_text(shown, text);
    fuzz::require(std::memchr(text, 0, sizeof text), "the text fits its place");
    const std::string_view whole = text;
    if (std::isfinite(shown) && whole.find('.') != whole.npos)
        fuzz::require(!whole.ends_with('0') && !whole.ends_with('.'), "no idle digits");

    float read = 0;
    fuzz::require(adm::text_to_float(text, &read), "what is shown is a number");
    if (std::isnan(shown))
        fuzz::require(std::isnan(read), "no number stays none");
    else if (std::isinf(shown))
        fuzz::require(shown == read, "infinite stays infinite");
    else
        fuzz::require(std::fabs(double(read) - shown) <= 5.1e-7 + std::fabs(shown) * 1e-7,
                      "shown with six digits");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    float number = 17;
    const bool is_number = adm::text_to_float(text.c_str(), &number);
    fuzz::require(is_number || number == 17, "refused text changes nothing");
    int whole = 17;
    const bool is_whole = adm::text_to_int(text.c_str(), &whole);
    fuzz::require(is_whole || whole == 17, "refused text changes nothing");
    // What begins like a whole number is a number of that whole part, but for hexadecimals.
    if (is_whole && text.find_first_of("xX") == text.npos)
        fuzz::require(is_number, "a whole number is a number");
    if (is_number) show_and_read(number);

    fuzz::Bytes bytes(data, size);
    show_and_read(bytes.take<float>());
    return 0;
}
