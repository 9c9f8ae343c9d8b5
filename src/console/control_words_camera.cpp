// The words of the camera, the photo archive and the floor plan.
#include "console/control_words_rows.h"

namespace quorrin {

WordsRows cameraWords() {
    return {
        {"imgCamera", "", "Camera", "What the robot's camera sees."},
        {"cmdZoomCamera", "", "Zoom the camera", "Opens a larger view of the camera.", "F7"},
        {"sldImageQuality", "Image Quality:", "Image quality",
         "Quality of the pictures for remote clients, in per cent.", "Alt+Q"},
        {"lblImageQuality", "Currently Image Quality:", "Present image quality",
         "Quality of the pictures in per cent."},
        {"cmdTakePhoto", "", "Take a photo", "Asks the robot's camera for one picture.", "Ctrl+Shift+T"},
        {"lblVideoCnt", "Video Frames", "Count of video frames", "Pictures made for the remote client."},
        {"Label8", "File Read (bytes)", "Size of the file read",
         "Size of the last picture file that was read for the client, in bytes."},
        {"Label9", "File Length (bytes)", "Length of the file",
         "Length of the last picture file for the client, in bytes."},
    };
}

WordsRows archiveWords() {
    return {
        {"cmdCatch", "", "Capture photos", "Starts or stops storing the camera's pictures.", "Ctrl+R"},
        {"optFramesPerSec(0)", "3 frames per second", "3 frames per second",
         "Stores three pictures each second."},
        {"optFramesPerSec(1)", "1 frame per second", "1 frame per second", "Stores one picture each second."},
        {"cobStoreDay", "Store", "Days to keep pictures", "How many days of pictures are kept.", "",
         "Days Image Data"},
        {"lblCaptureNote", "", "Message of the capture", "Why the capture was stopped."},
        {"cobAvailDate", "Date", "Day to review", "The days that have pictures. Choosing one plays it.",
         "Alt+D"},
        {"lstPlayVideo", "Pictures", "Pictures of the day",
         "The chosen day's pictures; the marked one is shown."},
        {"picPlayVideo", "", "Reviewed picture", "The picture under review."},
        {"lblDateValue", "Date:", "Date of the pictures", "The day under review."},
        {"lblTimeValue", "Time:", "Time of the picture", "When the shown picture was taken."},
        {"lblPlayingNumber", "Picture:", "Number of the picture",
         "Number of the shown picture, and of all pictures of the day."},
        {"lblReviewNote", "", "Message of the review", "Why a picture is not shown."},
        {"cmdPlay", "", "Play", "Plays the day's pictures.", "Ctrl+P"},
        {"cmdPause", "", "Pause", "Holds the playback, or goes on with it.", "Ctrl+Shift+P"},
        {"cmdStopReview", "", "Stop the review", "Stops and goes back to the first picture.", "Ctrl+Shift+S"},
        {"cmdForward", "", "Fast forward", "Plays fast while it is held down."},
        {"cmdBackward", "", "Fast backward", "Plays backwards fast while it is held down."},
    };
}

WordsRows mapWords() {
    return {
        {"fraMapDisplay", "", "Floor plan",
         "The floor plan of the robot's site. The robot is not shown on it."},
        {"Frame1", "", "Part of the floor plan that is seen",
         "Drag the plan, or turn the mouse wheel, to see another part of it."},
        {"picRobotMap", "", "Floor plan picture",
         "Drag the plan, or turn the mouse wheel, to see another part of it."},
        {"imgThumb", "", "Overview of the floor plan",
         "The whole floor plan; the frame shows the part that is seen above."},
        {"HScroll1", "", "Move the plan sideways", "Moves the floor plan to the left and right."},
        {"VScroll1", "", "Move the plan up and down", "Moves the floor plan up and down."},
        {"RoomPic", "", "Built-in plan", "A plan that came with the program. It never changes."},
    };
}

}  // namespace quorrin
