# Fails when a folder includes a header that it must not use. The product and the platform's interface use only the
# standard library and each other. The view tree also uses the desktop platform, but no other library. Run with -D
# source=<the project's folder>.

function(check_layer rooms allowed)
  foreach(room IN LISTS rooms)
    file(GLOB_RECURSE files ${source}/${room}/*.h ${source}/${room}/*.cpp)
    foreach(file IN LISTS files)
      file(STRINGS ${file} includes REGEX "^[ \t]*#[ \t]*include")
      foreach(line IN LISTS includes)
        # Headers of the standard library have no slash and no dot.
        if(NOT line MATCHES "<[a-z0-9_]+>" AND NOT line MATCHES "${allowed}")
          file(RELATIVE_PATH name ${source} ${file})
          message(SEND_ERROR "${name} must not include this: ${line}")
        endif()
      endforeach()
    endforeach()
  endforeach()
endfunction()

set(frameworks "Foundation|CoreFoundation|CoreGraphics|CommonCrypto|UIKit|Preferences|AppSupport|MessageUI|QuartzCore|System")
check_layer("settings;include" "\"(settings|include|platform/(${frameworks}))/")
check_layer(
  "platform/Foundation;platform/CoreFoundation;platform/CoreGraphics;platform/CommonCrypto;platform/UIKit;platform/Preferences;platform/AppSupport;platform/MessageUI;platform/QuartzCore;platform/System"
  "(\"platform/(${frameworks})/|<xlocale\\.h>)")
check_layer("platform/desktop/UIKit;platform/desktop/Preferences;platform/desktop/QuartzCore" "\"(platform|toolkit)/")
check_layer("toolkit" "\"toolkit/")
check_layer("desktop/engine/audio" "(\"desktop/engine/audio/|<xmmintrin\\.h>)")
check_layer("presets" "(\"presets/|\"desktop/engine/audio/|\"platform/desktop/Foundation/UnicodeText|<nlohmann/|<Eigen/)")
