// The parts of UIKit in iOS 9 that the platform uses.
#pragma once

#import <UIKit/UIAlertController.h>
#import <UIKit/UIApplication.h>
#import <UIKit/UIButton.h>
#import <UIKit/UIColor.h>
#import <UIKit/UIControl.h>
#import <UIKit/UIDevice.h>
#import <UIKit/UIFont.h>
#import <UIKit/UIGraphics.h>
#import <UIKit/UIImage.h>
#import <UIKit/UIImageView.h>
#import <UIKit/UILabel.h>
#import <UIKit/UIResponder.h>
#import <UIKit/UIScreen.h>
#import <UIKit/UIScrollView.h>
#import <UIKit/UISlider.h>
#import <UIKit/UISwitch.h>
#import <UIKit/UITableView.h>
#import <UIKit/UITableViewCell.h>
#import <UIKit/UITextField.h>
#import <UIKit/UIView.h>
#import <UIKit/UIViewController.h>
#import <UIKit/UIWindow.h>
