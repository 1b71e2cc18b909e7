#pragma once

#include "platform/macos/overlays/DrawListView.h"

// A small picture with rounded corners, a hairline and a faint shadow, for which it is a little larger than the
// picture.
@interface QuorvelThumbnailView : QuorvelDrawListView

+ (instancetype)thumbnailOfSize:(NSSize)size content:(const quorvel::DrawList&)content;

- (CGFloat)pictureWidth;

@end
