// The framework for panes of the Settings app. It is private.
#pragma once

#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>
#import <Preferences/PSViewController.h>
