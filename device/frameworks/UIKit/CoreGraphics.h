#pragma once

#import <Foundation/Foundation.h>

// GNUstep's own geometry types have other names, and so other method types, than an iPhone's.

struct CGPoint {
  CGFloat x;
  CGFloat y;
};

struct CGSize {
  CGFloat width;
  CGFloat height;
};

struct CGRect {
  CGPoint origin;
  CGSize size;
};

struct CGAffineTransform {
  CGFloat a, b, c, d, tx, ty;
};

inline constexpr CGPoint CGPointZero = {0, 0};
inline constexpr CGSize CGSizeZero = {0, 0};
inline constexpr CGRect CGRectZero = {{0, 0}, {0, 0}};
inline constexpr CGAffineTransform CGAffineTransformIdentity = {1, 0, 0, 1, 0, 0};

constexpr CGSize CGSizeMake(CGFloat width, CGFloat height) { return {width, height}; }
constexpr CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
  return {{x, y}, {width, height}};
}

constexpr CGFloat CGRectGetMaxX(CGRect rect) { return rect.origin.x + rect.size.width; }
constexpr CGFloat CGRectGetMaxY(CGRect rect) { return rect.origin.y + rect.size.height; }
constexpr CGPoint CGRectGetCenter(CGRect rect) {
  return {rect.origin.x + rect.size.width / 2, rect.origin.y + rect.size.height / 2};
}

constexpr bool CGSizeEqualToSize(CGSize a, CGSize b) { return a.width == b.width && a.height == b.height; }

constexpr bool CGRectContainsPoint(CGRect rect, CGPoint point) {
  return point.x >= rect.origin.x && point.x < CGRectGetMaxX(rect) && point.y >= rect.origin.y &&
         point.y < CGRectGetMaxY(rect);
}

constexpr bool CGRectIntersectsRect(CGRect a, CGRect b) {
  return a.origin.x < CGRectGetMaxX(b) && b.origin.x < CGRectGetMaxX(a) && a.origin.y < CGRectGetMaxY(b) &&
         b.origin.y < CGRectGetMaxY(a);
}

/// Empty where they do not meet.
constexpr CGRect CGRectIntersection(CGRect a, CGRect b) {
  const CGPoint origin = {a.origin.x > b.origin.x ? a.origin.x : b.origin.x,
                          a.origin.y > b.origin.y ? a.origin.y : b.origin.y};
  const CGPoint end = {CGRectGetMaxX(a) < CGRectGetMaxX(b) ? CGRectGetMaxX(a) : CGRectGetMaxX(b),
                       CGRectGetMaxY(a) < CGRectGetMaxY(b) ? CGRectGetMaxY(a) : CGRectGetMaxY(b)};
  if (end.x <= origin.x || end.y <= origin.y) return CGRectZero;
  return {origin, {end.x - origin.x, end.y - origin.y}};
}

constexpr bool CGRectContainsRect(CGRect a, CGRect b) {
  return a.origin.x <= b.origin.x && a.origin.y <= b.origin.y && CGRectGetMaxX(b) <= CGRectGetMaxX(a) &&
         CGRectGetMaxY(b) <= CGRectGetMaxY(a);
}

constexpr bool CGRectIsEmpty(CGRect rect) { return rect.size.width <= 0 || rect.size.height <= 0; }
