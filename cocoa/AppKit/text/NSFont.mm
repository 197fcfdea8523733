#include <AppKit/NSFont.h>

#include "Foundation/StringText.h"
#include "TextLayout.h"

#include <algorithm>
#include <map>
#include <string>
#include <strings.h>
#include <tuple>

namespace {

constexpr const char* interface_family = "Inter";

// The first family of the machine that has one of the names; null without one.
const char* installed_family(std::initializer_list<const char*> names) {
    PangoFontFamily** families = nullptr;
    int count = 0;
    pango_context_list_families(text::context(), &families, &count);
    const char* found = nullptr;
    for (const char* name : names)
        for (int i = 0; i < count && !found; ++i)
            if (strcasecmp(pango_font_family_get_name(families[i]), name) == 0)
                found = pango_font_family_get_name(families[i]);
    g_free(families);
    return found;
}

// The platform's own typewriter faces are on every machine of the platform: here another one takes
// their place.
const char* substitute_for(const std::string& family) {
    for (const char* typewriter : {"Courier", "Courier New", "Monaco", "Menlo"})
        if (strcasecmp(family.c_str(), typewriter) == 0)
            return installed_family({"Courier Prime", "Nimbus Mono PS", "Liberation Mono",
                                     "DejaVu Sans Mono", "Monospace"});
    return nullptr;
}

struct Name {
    std::string family;
    bool bold = false, italic = false;
};

// "Family-BoldOblique" is a family with its style.
Name parsed(const std::string& name) {
    const std::size_t dash = name.rfind('-');
    if (dash == std::string::npos) return {name};
    Name split{name.substr(0, dash)};
    std::string style = name.substr(dash + 1);
    const auto take = [&](const char* word) {
        const std::size_t at = style.find(word);
        if (at == std::string::npos) return false;
        style.erase(at, std::string(word).size());
        return true;
    };
    split.bold = take("Bold");
    split.italic = take("Oblique") || take("Italic");
    take("Regular");
    if (style.empty()) return split;
    return {name};
}

} // namespace

@interface NSFont (Making)
- (BOOL)isBold;
- (BOOL)isItalic;
- (id)initWithName:(NSString*)name
            family:(const char*)family
              size:(CGFloat)size
              bold:(BOOL)bold
            italic:(BOOL)italic;
@end

namespace {

struct Metrics {
    double ascender = 0, descender = 0, leading = 0;
    bool fixed_pitch = false;
};

Metrics measured(const char* family, double size, bool bold, bool italic) {
    Metrics metrics;
    PangoFont* font = pango_context_load_font(text::context(),
                                              text::description(family, size, bold, italic).get());
    if (!font) return metrics;
    PangoFontMetrics* found = pango_font_get_metrics(font, nullptr);
    metrics.ascender = pango_units_to_double(pango_font_metrics_get_ascent(found));
    metrics.descender = -pango_units_to_double(pango_font_metrics_get_descent(found));
    const double height = pango_units_to_double(pango_font_metrics_get_height(found));
    metrics.leading = std::max(0.0, height - (metrics.ascender - metrics.descender));
    pango_font_metrics_unref(found);
    PangoFontFace* face = pango_font_get_face(font);
    metrics.fixed_pitch = face && pango_font_family_is_monospace(pango_font_face_get_family(face));
    g_object_unref(font);
    return metrics;
}

// Measuring loads the typeface: what was measured is kept, up to a number of fonts that only a
// program with ever new sizes exceeds.
const Metrics& metrics_of(const char* family, double size, bool bold, bool italic) {
    using Key = std::tuple<std::string, double, bool, bool>;
    static std::map<Key, Metrics> known;
    if (known.size() >= 256) known.clear();
    const auto [place, is_new] = known.try_emplace(Key(family, size, bold, italic));
    if (is_new) place->second = measured(family, size, bold, italic);
    return place->second;
}

NSFont* make_font(const std::string& name, const char* family, double size, bool bold,
                  bool italic) {
    return [[[NSFont alloc] initWithName:string_of(name)
                                  family:family
                                    size:size
                                    bold:bold
                                  italic:italic] autorelease];
}

NSFont* system_font(CGFloat size, bool bold) {
    return make_font(bold ? "Inter-Bold" : "Inter-Regular", interface_family,
                     size > 0 ? size : [NSFont systemFontSize], bold, false);
}

} // namespace

@implementation NSFont

- (id)initWithName:(NSString*)name
            family:(const char*)family
              size:(CGFloat)size
              bold:(BOOL)bold
            italic:(BOOL)italic {
    self = [super init];
    if (!self) return nil;
    _name = [name copy];
    _family = [string_of(family) copy];
    _size = size;
    _bold = bold;
    _italic = italic;
    const Metrics& metrics = metrics_of(family, size, bold, italic);
    _ascender = metrics.ascender;
    _descender = metrics.descender;
    _leading = metrics.leading;
    _fixedPitch = metrics.fixed_pitch;
    return self;
}

- (void)dealloc {
    [_name release];
    [_family release];
    [super dealloc];
}

- (id)copyWithZone:(NSZone*)zone {
    (void)zone;
    return [self retain];
}

+ (NSFont*)systemFontOfSize:(CGFloat)size {
    return system_font(size, false);
}

+ (NSFont*)boldSystemFontOfSize:(CGFloat)size {
    return system_font(size, true);
}

+ (NSFont*)fontWithName:(NSString*)name size:(CGFloat)size {
    if (![name length]) return nil;
    const std::string asked(text_of(name));
    for (const Name& wanted : {Name{asked}, parsed(asked)}) {
        const char* family = installed_family({wanted.family.c_str()});
        if (!family) family = substitute_for(wanted.family);
        if (family)
            return make_font(asked, family, size > 0 ? size : 12, wanted.bold, wanted.italic);
    }
    return nil;
}

+ (CGFloat)systemFontSize {
    return 13;
}

+ (CGFloat)smallSystemFontSize {
    return 11;
}

+ (CGFloat)labelFontSize {
    return 10;
}

+ (CGFloat)systemFontSizeForControlSize:(NSUInteger)controlSize {
    switch (controlSize) {
    case 1:
        return 11;
    case 2:
        return 9;
    default:
        return 13;
    }
}

- (NSString*)fontName {
    return _name;
}

- (NSString*)familyName {
    return _family;
}

- (CGFloat)pointSize {
    return _size;
}

- (CGFloat)ascender {
    return _ascender;
}

- (CGFloat)descender {
    return _descender;
}

- (CGFloat)leading {
    return _leading;
}

- (BOOL)isFixedPitch {
    return _fixedPitch;
}

- (BOOL)isBold {
    return _bold;
}

- (BOOL)isItalic {
    return _italic;
}

- (BOOL)isEqual:(id)other {
    return other == self || ([other isKindOfClass:[NSFont class]] && [other pointSize] == _size &&
                             [[other fontName] isEqualToString:_name]);
}

- (NSUInteger)hash {
    return [_name hash] * 31 + static_cast<NSUInteger>(_size * 16);
}

@end

text::FontPointer text::description(NSFont* font) {
    return description(std::string(text_of([font familyName])).c_str(), [font pointSize],
                       [font isBold], [font isItalic]);
}
