// The framework that panes of the Settings app are made with. It is private.
#pragma once

#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>
#import <Preferences/PSViewController.h>
