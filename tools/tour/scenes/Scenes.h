#pragma once

class Stage;

void dropPhotos(Stage& stage);
void openWithoutPhotos(Stage& stage);
void addOperations(Stage& stage);
void tuneOperation(Stage& stage);
void stepThroughPhotos(Stage& stage);
void viewLarge(Stage& stage);
void orderOperations(Stage& stage);
void keepFavourites(Stage& stage);
void showBubbles(Stage& stage);
void showMenus(Stage& stage);
void chooseSettings(Stage& stage);
void checkUpdates(Stage& stage);
void showDialogs(Stage& stage);
void showStates(Stage& stage);
void showEachOperation(Stage& stage);
void saveResults(Stage& stage);
void saveRenamed(Stage& stage);
void saveReadable(Stage& stage);
void showHelp(Stage& stage);
void showReminders(Stage& stage);
void showAppDialogs(Stage& stage);
void editStyleSheet(Stage& stage);
