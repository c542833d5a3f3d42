// What Foundation consists of on the simulated phone.
#include "simulator/standin/Registration.h"

#include "simulator/foundation/Arc4Random.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/NSBundle.h"
#include "simulator/foundation/NSCharacterSet.h"
#include "simulator/foundation/NSData.h"
#include "simulator/foundation/NSDate.h"
#include "simulator/foundation/NSDictionary.h"
#include "simulator/foundation/NSError.h"
#include "simulator/foundation/NSFileManager.h"
#include "simulator/foundation/NSLocale.h"
#include "simulator/foundation/NSLog.h"
#include "simulator/foundation/NSMutableArray.h"
#include "simulator/foundation/NSMutableDictionary.h"
#include "simulator/foundation/NSMutableSet.h"
#include "simulator/foundation/NSMutableString.h"
#include "simulator/foundation/NSNotification.h"
#include "simulator/foundation/NSNotificationCenter.h"
#include "simulator/foundation/NSNull.h"
#include "simulator/foundation/NSNumber.h"
#include "simulator/foundation/NSNumberFormatter.h"
#include "simulator/foundation/NSObject.h"
#include "simulator/foundation/NSProcessInfo.h"
#include "simulator/foundation/NSRunLoop.h"
#include "simulator/foundation/NSSet.h"
#include "simulator/foundation/NSString.h"
#include "simulator/foundation/NSThread.h"
#include "simulator/foundation/NSTimer.h"
#include "simulator/foundation/NSUserDefaults.h"
#include "simulator/foundation/NSValue.h"

namespace sim {

void registerFoundation() {
  NSString::registerClass();
  NSMutableString::registerClass();
  NSValue::registerClass();
  NSNumber::registerClass();
  NSDate::registerClass();
  NSCharacterSet::registerClass();
  NSData::registerClass();
  NSNull::registerClass();
  NSArray::registerClass();
  NSMutableArray::registerClass();
  NSDictionary::registerClass();
  NSMutableDictionary::registerClass();
  NSSet::registerClass();
  NSMutableSet::registerClass();
  NSThread::registerClass();
  NSError::registerClass();
  NSLocale::registerClass();
  NSNumberFormatter::registerClass();
  NSFileManager::registerClass();
  NSBundle::registerClass();
  NSUserDefaults::registerClass();
  NSNotification::registerClass();
  NSNotificationCenter::registerClass();
  NSProcessInfo::registerClass();
  NSTimer::registerClass();
  NSRunLoop::registerClass();
  recordLogFunctions();
  recordRandomNumbers();
  addObjectMethods();  // some of it is for the collections
}

}  // namespace sim
