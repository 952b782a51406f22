#pragma once

#include "platform/UIKit/UITableView.h"

#import <UIKit/UIKit.h>

/// Forwards a native table's calls to the product's data source and delegate. The table retains it.
@interface BRTableDelegate : NSObject <UITableViewDataSource, UITableViewDelegate> {
@public
    /// May be null.
    brimsound::UITableViewDataSource* _dataSource;
    brimsound::UITableViewDelegate* _delegate;
}
@end
