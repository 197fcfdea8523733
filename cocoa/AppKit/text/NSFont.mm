#include <AppKit/NSFont.h>

#include "Foundation/NSStringStorage.h"
#include "TextLayout.h"

#include <algorithm>
#include <string>
#include <strings.h>

namespace {

constexpr const char* interface_family = "Inter";

// The first of the names that is an installed family; null if none is.
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

// The monospaced families of the platform are not installed here: another one replaces them.
const char* substitute_for(const std::string& family) {
    for (const char* monospaced : {"Courier", "Courier New", "Monaco", "Menlo"})
        if (strcasecmp(family.c_str(), monospaced) == 0)
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

@interface NSFont (Private)
- (id)initWithName:(NSString*)name
            family:(const char*)family
              size:(CGFloat)size
              bold:(BOOL)bold
            italic:(BOOL)italic;
- (text::FontPointer)pangoDescription;
@end

namespace {

NSFont* make_font(const std::string& name, const char* family, double size, bool bold,
                  bool italic) {
    return [[[NSFont alloc] initWithName:string_from_utf8(name)
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
    _family = [string_from_utf8(family) copy];
    _size = size;
    _bold = bold;
    _italic = italic;
    return self;
}

- (void)dealloc {
    [_name release];
    [_family release];
    [super dealloc];
}

+ (NSFont*)systemFontOfSize:(CGFloat)size {
    return system_font(size, false);
}

+ (NSFont*)boldSystemFontOfSize:(CGFloat)size {
    return system_font(size, true);
}

+ (NSFont*)fontWithName:(NSString*)name size:(CGFloat)size {
    if (![name length]) return nil;
    const std::string asked(utf8_of(name));
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

- (CGFloat)pointSize {
    return _size;
}

- (text::FontPointer)pangoDescription {
    text::FontPointer font(pango_font_description_new());
    pango_font_description_set_family(font.get(), [_family UTF8String]);
    pango_font_description_set_absolute_size(font.get(), std::min(_size, 1e6) * PANGO_SCALE);
    if (_bold) pango_font_description_set_weight(font.get(), PANGO_WEIGHT_BOLD);
    if (_italic) pango_font_description_set_style(font.get(), PANGO_STYLE_ITALIC);
    return font;
}

@end

text::FontPointer text::description(NSFont* font) {
    return [font pangoDescription];
}
