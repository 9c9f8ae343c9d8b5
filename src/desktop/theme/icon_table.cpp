#include "desktop/theme/icon_paths.h"

namespace quorrin {

QString iconWords(IconName name) {
    switch (name) {
        case IconName::idle:
            return "O 12 12 9;M 9.5 8.5 L 9.5 15.5;M 14.5 8.5 L 14.5 15.5";
        case IconName::wandering:
            return "M 3 18 C 5 11 8 11 10 14 C 12 17 15 15 16 10;M 12 10.5 L 16.5 6.5 L 19.5 11.5;F O 3.5 18 "
                   "1.6";
        case IconName::joystick:
            return "O 12 6 3;M 12 9 L 12 15;R 4 15 16 5.5 2;M 16.5 17.7 L 17 17.7";
        case IconName::modeSwitch:
            return "M 12 3 L 12 11;A 12 13 8 60 -300";
        case IconName::talk:
            return "R 9 3 6 11 3;A 12 11 7 180 180;M 12 18 L 12 21;M 8.5 21 L 15.5 21";
        case IconName::listen:
            return "A 12 12 8 0 180;R 3 12 4 7 1.5;R 17 12 4 7 1.5";
        case IconName::settings:
            return "M 3 6.5 L 13 6.5;M 19 6.5 L 21 6.5;O 16 6.5 2.4;M 3 12 L 5 12;M 11 12 L 21 12;O 8 12 "
                   "2.4;M 3 "
                   "17.5 L 11 17.5;M 17 17.5 L 21 17.5;O 14 17.5 2.4";
        case IconName::panel:
            return "R 3 4 18 16 2.5;M 12 7.2 L 12 16.8;M 7.2 12 L 16.8 12;M 10.3 8.9 L 12 7.2 L 13.7 8.9;M "
                   "10.3 "
                   "15.1 L 12 16.8 L 13.7 15.1";
        case IconName::zoom:
            return "O 10.5 10.5 6.5;M 15.5 15.5 L 21 21;M 7.5 10.5 L 13.5 10.5;M 10.5 7.5 L 10.5 13.5";
        case IconName::play:
            return "F M 7 4.5 L 19 12 L 7 19.5 Z";
        case IconName::pause:
            return "F R 6 5 4 14 1;F R 14 5 4 14 1";
        case IconName::stop:
            return "F R 5.5 5.5 13 13 1.5";
        case IconName::forward:
            return "F M 4 5.5 L 12 12 L 4 18.5 Z;F M 12 5.5 L 20 12 L 12 18.5 Z";
        case IconName::backward:
            return "F M 20 5.5 L 12 12 L 20 18.5 Z;F M 12 5.5 L 4 12 L 12 18.5 Z";
        case IconName::camera:
            return "M 3 8 L 7 8 L 9 5 L 15 5 L 17 8 L 21 8 L 21 19 L 3 19 Z;O 12 13 3.6";
        case IconName::folder:
            return "M 3 19 L 3 5.5 L 9.5 5.5 L 11.5 8 L 21 8 L 21 19 Z";
        case IconName::exit:
            return "M 13 4 L 5 4 L 5 20 L 13 20;M 10 12 L 20.5 12;M 16.5 8 L 20.5 12 L 16.5 16";
        case IconName::help:
            return "O 12 12 9;A 12 9.6 2.7 180 -190;M 14.6 10.2 C 14 11.8 12 11.7 12 13.6;F O 12 17 1.2";
        case IconName::about:
            return "O 12 12 9;M 12 11 L 12 17;F O 12 7.4 1.3";
        case IconName::www:
            return "O 12 12 9;M 3 12 L 21 12;M 12 3 C 7 8 7 16 12 21;M 12 3 C 17 8 17 16 12 21";
        case IconName::arrowUp:
            return "M 12 20 L 12 5;M 5.5 11 L 12 4.5 L 18.5 11";
        case IconName::arrowDown:
            return "M 12 4 L 12 19;M 5.5 13 L 12 19.5 L 18.5 13";
        case IconName::arrowLeft:
            return "M 20 12 L 5 12;M 11 5.5 L 4.5 12 L 11 18.5";
        case IconName::arrowRight:
            return "M 4 12 L 19 12;M 13 5.5 L 19.5 12 L 13 18.5";
        case IconName::turnLeft:
            return "A 12 13 7 -60 240;M 1.8 9.8 L 5 13.4 L 8.8 10.2";
        case IconName::turnRight:
            return "A 12 13 7 -120 -240;M 22.2 9.8 L 19 13.4 L 15.2 10.2";
        case IconName::link:
            return "M 9.5 14.5 L 14.5 9.5;M 11 7.5 L 13.2 5.3 C 15.8 2.8 21.2 8.2 18.7 10.8 L 16.5 13;M 13 "
                   "16.5 L "
                   "10.8 18.7 C 8.2 21.2 2.8 15.8 5.3 13.2 L 7.5 11";
        case IconName::multimedia:
            return "R 3 6 13 12 2;M 16 11 L 21 8 L 21 16 L 16 13";
        case IconName::battery:
            return "R 2.5 7 16.5 10 2;M 21.5 10.5 L 21.5 13.5;F R 5 9.5 7.5 5 0.5";
        case IconName::charge:
            return "F M 13.5 2.5 L 5 13.5 L 11 13.5 L 9.5 21.5 L 19 9.5 L 12.5 9.5 Z";
        case IconName::plug:
            return "M 9 3 L 9 8;M 15 3 L 15 8;M 6 8 L 18 8 L 18 11 C 18 15 15 16.5 12 16.5 C 9 16.5 6 15 6 "
                   "11 Z;M 12 "
                   "16.5 L 12 21";
        case IconName::temperature:
            return "A 12 5.5 2.5 0 180;M 9.5 5.5 L 9.5 13.8;M 14.5 5.5 L 14.5 13.8;A 12 17 4 128 284;F O 12 "
                   "17 "
                   "2;M 12 16 L 12 9";
        case IconName::motor:
            return "O 12 12 8.5;O 12 12 2.6;M 12 3.5 L 12 9.4;M 4.6 16.2 L 9.7 13.3;M 19.4 16.2 L 14.3 13.3";
        case IconName::person:
            return "O 12 7.5 4;M 4 21 C 4 15.5 8 14 12 14 C 16 14 20 15.5 20 21";
        case IconName::remote:
            return "R 3 4 18 12 2;M 8 20 L 16 20;M 12 16 L 12 20;A 12 12.5 2 0 180;A 12 12.5 5 20 140";
        case IconName::network:
            return "A 12 17 4 35 110;A 12 17 8.5 38 104;A 12 17 13 42 96;F O 12 17.5 1.7";
        case IconName::networkOff:
            return "A 12 17 4 35 110;A 12 17 8.5 38 104;A 12 17 13 42 96;F O 12 17.5 1.7;M 4 3 L 20 21";
        case IconName::call:
            return "M 5 3.5 L 9 3.5 L 10.5 8.5 L 8 10.5 C 9 13 11 15 13.5 16 L 15.5 13.5 L 20.5 15 L 20.5 19 "
                   "C 20.5 "
                   "20 19.5 20.7 18.5 20.5 C 10.5 19.5 4.5 13.5 3.5 5.5 C 3.3 4.5 4 3.5 5 3.5";
        case IconName::callEnded:
            return "M 2.5 13 C 7 7.5 17 7.5 21.5 13 L 19.5 16.5 L 15.5 15 L 15 12 C 13 11.3 11 11.3 9 12 L "
                   "8.5 15 L "
                   "4.5 16.5 Z";
        case IconName::soundIn:
            return "R 3 9 4 6 0.5;M 7 9 L 12 5 L 12 19 L 7 15;M 21 12 L 15 12;M 17.5 9.2 L 14.8 12 L 17.5 "
                   "14.8";
        case IconName::soundOut:
            return "R 3 9 4 6 0.5;M 7 9 L 12 5 L 12 19 L 7 15;A 11 12 5 -45 90;A 11 12 9 -45 90";
        case IconName::soundOff:
            return "R 3 9 4 6 0.5;M 7 9 L 12 5 L 12 19 L 7 15;M 15.5 9.5 L 20.5 14.5;M 20.5 9.5 L 15.5 14.5";
        case IconName::stuck:
            return "M 20.5 3 L 20.5 21;O 9 12 5.5;M 16 9 L 18.3 9;M 16 15 L 18.3 15;M 16.5 12 L 18.3 12";
        case IconName::holder:
            return "O 12 12 9;O 12 12 2.5;M 3.5 10.5 L 9.7 11.3;M 20.5 10.5 L 14.3 11.3;M 12 14.5 L 12 21";
        case IconName::theme:
            return "O 12 12 8.5;F A 12 12 8.5 90 180 Z";
        case IconName::engineering:
            return "M 3 20 L 3 4;M 3 20 L 21 20;M 6 15.5 L 10 9.5 L 13.5 13 L 19.5 5.5";
        case IconName::menu:
            return "M 4 6.5 L 20 6.5;M 4 12 L 20 12;M 4 17.5 L 20 17.5";
        case IconName::close:
        case IconName::cross:
            return "M 5.5 5.5 L 18.5 18.5;M 18.5 5.5 L 5.5 18.5";
        case IconName::map:
            return "M 3 6 L 9 3.5 L 15 6 L 21 3.5 L 21 18 L 15 20.5 L 9 18 L 3 20.5 Z;M 9 3.5 L 9 18;M 15 6 "
                   "L 15 "
                   "20.5";
        case IconName::floorPlan:
            return "R 3 4 18 16 1;M 10 4 L 10 8;M 10 11.5 L 10 20;M 10 13 L 14 13;M 17.5 13 L 21 13";
        case IconName::speech:
            return "M 4 4 L 20 4 L 20 16 L 11 16 L 6.5 20.5 L 6.5 16 L 4 16 Z;M 8 8.5 L 16 8.5;M 8 12 L 13 "
                   "12";
        case IconName::tick:
            return "M 4.5 12.5 L 10 18 L 19.5 6.5";
        case IconName::warning:
            return "M 12 3.5 L 22 20.5 L 2 20.5 Z;M 12 10 L 12 14.5;F O 12 17.4 1.2";
        case IconName::busy:
            return "O 12 12 9;M 12 6.5 L 12 12 L 16 14.5";
        case IconName::mark:
            return "A 12 11.5 8.5 -35 310;M 12.5 13 L 20 20.5;O 12 11.5 3;F O 12 11.5 1.2";
        case IconName::count:
            break;
    }
    return {};
}

}  // namespace quorrin
