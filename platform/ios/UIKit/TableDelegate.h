// What a native table is asked and told through.
#pragma once

#include "platform/UIKit/UITableView.h"

#import <UIKit/UIKit.h>

/// Hands what a table asks to a data source and to a delegate of ours. The table holds it.
@interface BRTableDelegate : NSObject <UITableViewDataSource, UITableViewDelegate> {
@public
    /// Null for none.
    brimsound::UITableViewDataSource* _dataSource;
    brimsound::UITableViewDelegate* _delegate;
}
@end
