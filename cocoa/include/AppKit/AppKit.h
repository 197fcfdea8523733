// All of AppKit.
#pragma once

#include <CoreGraphics/CoreGraphics.h>
#include <Foundation/Foundation.h>

// Drawing.
#include <AppKit/NSBezierPath.h>
#include <AppKit/NSColor.h>
#include <AppKit/NSFont.h>
#include <AppKit/NSGradient.h>
#include <AppKit/NSGraphicsContext.h>
#include <AppKit/NSParagraphStyle.h>
#include <AppKit/NSStringDrawing.h>
