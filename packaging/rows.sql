UPDATE `Component` SET `Condition` = 'PRESET' WHERE `Component` = 'preset'
INSERT INTO `RemoveFile` (`FileKey`, `Component_`, `DirProperty`, `InstallMode`) VALUES ('z1_templates', 'registration', 'templates', 2)
INSERT INTO `RemoveFile` (`FileKey`, `Component_`, `DirProperty`, `InstallMode`) VALUES ('z2_signatures', 'registration', 'signatures', 2)
INSERT INTO `RemoveFile` (`FileKey`, `Component_`, `DirProperty`, `InstallMode`) VALUES ('z3_pictures', 'registration', 'pictures', 2)
INSERT INTO `RemoveFile` (`FileKey`, `Component_`, `DirProperty`, `InstallMode`) VALUES ('z4_stationery', 'registration', 'stationery', 2)
INSERT INTO `RemoveFile` (`FileKey`, `Component_`, `DirProperty`, `InstallMode`) VALUES ('z5_programs', 'registration', 'programs', 2)
INSERT INTO `RemoveFile` (`FileKey`, `Component_`, `DirProperty`, `InstallMode`) VALUES ('z6_ornavel', 'registration', 'ornavel', 2)
INSERT INTO `RemoveFile` (`FileKey`, `Component_`, `DirProperty`, `InstallMode`) VALUES ('z7_brevant', 'registration', 'brevant', 2)
INSERT INTO `RemoveFile` (`FileKey`, `Component_`, `DirProperty`, `InstallMode`) VALUES ('z8_menu', 'registration', 'menu', 2)
UPDATE `CustomAction` SET `Type` = 51 WHERE `Source` = 'REINSTALLMODE'
UPDATE `CustomAction` SET `Type` = 51 WHERE `Source` = 'REINSTALL'
UPDATE `CustomAction` SET `Type` = 51 WHERE `Source` = 'PRESET'
UPDATE `CustomAction` SET `Type` = 51 WHERE `Source` = 'PRESETVERSION'
UPDATE `CustomAction` SET `Type` = 65 WHERE `Action` = 'look_at_samples'
UPDATE `InstallExecuteSequence` SET `Sequence` = 51 WHERE `Action` = 'install_again_with_keys'
UPDATE `InstallExecuteSequence` SET `Sequence` = 52 WHERE `Action` = 'install_again'
UPDATE `InstallExecuteSequence` SET `Sequence` = 53 WHERE `Action` = 'keep_preset'
UPDATE `InstallExecuteSequence` SET `Sequence` = 54 WHERE `Action` = 'keep_preset_version'
UPDATE `InstallExecuteSequence` SET `Sequence` = 55 WHERE `Action` = 'look_at_samples'
UPDATE `InstallExecuteSequence` SET `Sequence` = 1501 WHERE `Action` = 'RemoveExistingProducts'
UPDATE `Property` SET `Value` = 'WIX_DOWNGRADE_DETECTED;WIX_UPGRADE_DETECTED;PRESET;PRESETVERSION;OLDPRESET;OLDPRESETVERSION;OTHERBITS;OTHERBITSNEWER;OL1432;OL1464;OL1532;OL1564;OL1632;OL1664' WHERE `Property` = 'SecureCustomProperties'
INSERT INTO `LaunchCondition` (`Condition`, `Description`) VALUES ('REMOVE OR NOT PRESET OR PRESET >< ":\" OR PRESET << "\\"', 'PRESET needs a full path, as C:\Presets\company.reg or \\server\share\company.reg.')
INSERT INTO `LaunchCondition` (`Condition`, `Description`) VALUES ('REMOVE OR NOT PRESETVERSION OR PRESETVERSION >= 1 AND PRESETVERSION <= 32767', 'PRESETVERSION is a whole number from 1 to 32767.')
