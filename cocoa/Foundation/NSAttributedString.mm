#include <Foundation/NSAttributedString.h>
#include <Foundation/NSDictionary.h>
#include <Foundation/NSException.h>
#include <Foundation/NSString.h>

#include <algorithm>
#include <vector>

// Runs cover the string from its start to its end without a gap; an empty string has none.
struct NSAttributeRuns {
    struct Run {
        NSUInteger length;
        NSDictionary* attributes; // one reference
    };
    std::vector<Run> runs;

    NSAttributeRuns() = default;
    NSAttributeRuns(const NSAttributeRuns&) = delete;
    NSAttributeRuns& operator=(const NSAttributeRuns&) = delete;
    ~NSAttributeRuns() {
        for (const Run& run : runs) [run.attributes release];
    }

    void append(NSUInteger length, NSDictionary* attributes) {
        if (length == 0) return;
        if (!runs.empty() && [runs.back().attributes isEqual:attributes])
            runs.back().length += length;
        else
            runs.push_back({length, [attributes retain]});
    }
};

namespace {

void refuse(NSString* reason) {
    [NSException raise:NSRangeException format:@"%@", reason];
}

// Replaces the attributes of the range by what `change` makes of them.
template <typename Change>
void change_runs(NSAttributeRuns*& runs, NSUInteger length, NSRange range, Change change) {
    if (range.location > length || range.length > length - range.location)
        refuse(@"range beyond the end of an attributed string");
    NSAttributeRuns* changed = new NSAttributeRuns;
    NSUInteger start = 0;
    for (const auto& run : runs->runs) {
        const NSUInteger end = start + run.length;
        const NSUInteger from = std::clamp(range.location, start, end);
        const NSUInteger to = std::clamp(range.location + range.length, start, end);
        changed->append(from - start, run.attributes);
        if (to > from) changed->append(to - from, change(run.attributes));
        changed->append(end - to, run.attributes);
        start = end;
    }
    delete runs;
    runs = changed;
}

} // namespace

@interface NSAttributedString (Runs)
- (const NSAttributeRuns*)runs;
@end

@implementation NSAttributedString

- (id)initWithString:(NSString*)string {
    return [self initWithString:string attributes:nil];
}

- (id)initWithString:(NSString*)string attributes:(NSDictionary*)attributes {
    if (!string) {
        [self release];
        [NSException raise:NSInvalidArgumentException format:@"nil string"];
    }
    self = [super init];
    if (!self) return nil;
    _string = [string copy];
    _runs = new NSAttributeRuns;
    NSDictionary* kept = attributes ? [[attributes copy] autorelease] : [NSDictionary dictionary];
    _runs->append([_string length], kept);
    return self;
}

- (id)initWithAttributedString:(NSAttributedString*)other {
    self = [self initWithString:other ? [other string] : @""];
    if (!self || !other) return self;
    delete _runs;
    _runs = new NSAttributeRuns;
    for (const auto& run : [other runs]->runs) _runs->append(run.length, run.attributes);
    return self;
}

- (void)dealloc {
    [_string release];
    delete _runs;
    [super dealloc];
}

- (id)copyWithZone:(NSZone*)zone {
    (void)zone;
    return [[NSAttributedString alloc] initWithAttributedString:self];
}

- (id)mutableCopyWithZone:(NSZone*)zone {
    (void)zone;
    return [[NSMutableAttributedString alloc] initWithAttributedString:self];
}

- (const NSAttributeRuns*)runs {
    return _runs;
}

- (NSString*)string {
    return _string;
}

- (NSUInteger)length {
    return [_string length];
}

- (NSDictionary*)attributesAtIndex:(NSUInteger)index effectiveRange:(NSRange*)range {
    NSUInteger start = 0;
    for (const auto& run : _runs->runs) {
        if (index - start < run.length) {
            if (range) *range = NSMakeRange(start, run.length);
            return run.attributes;
        }
        start += run.length;
    }
    refuse(@"index beyond the end of an attributed string");
    return nil;
}

- (id)attribute:(NSString*)name atIndex:(NSUInteger)index effectiveRange:(NSRange*)range {
    return [[self attributesAtIndex:index effectiveRange:range] objectForKey:name];
}

- (BOOL)isEqualToAttributedString:(NSAttributedString*)other {
    if (!other || ![_string isEqualToString:[other string]]) return NO;
    const auto same = [](const auto& a, const auto& b) {
        return a.length == b.length && [a.attributes isEqual:b.attributes];
    };
    const auto &mine = _runs->runs, &theirs = [other runs]->runs;
    return std::equal(mine.begin(), mine.end(), theirs.begin(), theirs.end(), same);
}

- (BOOL)isEqual:(id)other {
    return
        [other isKindOfClass:[NSAttributedString class]] && [self isEqualToAttributedString:other];
}

- (NSUInteger)hash {
    return [_string hash];
}

@end

@implementation NSMutableAttributedString

- (void)appendAttributedString:(NSAttributedString*)other {
    if (!other) return;
    NSAttributedString* added = [[other copy] autorelease]; // it may be this one
    NSString* joined = [[_string stringByAppendingString:[added string]] copy];
    [_string release];
    _string = joined;
    for (const auto& run : [added runs]->runs) _runs->append(run.length, run.attributes);
}

- (void)setAttributes:(NSDictionary*)attributes range:(NSRange)range {
    NSDictionary* kept = attributes ? [[attributes copy] autorelease] : [NSDictionary dictionary];
    change_runs(_runs, [self length], range, [&](NSDictionary*) { return kept; });
}

- (void)addAttribute:(NSString*)name value:(id)value range:(NSRange)range {
    if (!name || !value) [NSException raise:NSInvalidArgumentException format:@"nil attribute"];
    change_runs(_runs, [self length], range, [&](NSDictionary* present) {
        NSMutableDictionary* merged = [[present mutableCopy] autorelease];
        [merged setObject:value forKey:name];
        return [[merged copy] autorelease];
    });
}

@end
