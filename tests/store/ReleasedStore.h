// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Makes a version-1 store, byte for byte as the first released program writes it: January to March 2026, two goals and
/// settings. Never change it: people have such stores.
inline constexpr const char* releasedStore = R"(
BEGIN;
PRAGMA application_id = 1348824172;
PRAGMA user_version = 1;
CREATE TABLE month (pk INTEGER PRIMARY KEY, year INTEGER NOT NULL, month INTEGER NOT NULL, name TEXT NOT NULL, days_in_month INTEGER NOT NULL, days TEXT NOT NULL, checksum INTEGER NOT NULL) STRICT;
CREATE TABLE goal (pk INTEGER PRIMARY KEY, id TEXT NOT NULL, wanted_days_per_week TEXT NOT NULL, description TEXT NOT NULL, checksum INTEGER NOT NULL) STRICT;
CREATE TABLE app_settings (pk INTEGER PRIMARY KEY, days_per_week_goals TEXT NOT NULL, in_office_ssids TEXT NOT NULL, first_time INTEGER NOT NULL, wifi_tracking_enabled INTEGER NOT NULL, vacation_days_count_as_in_office INTEGER NOT NULL, notifications_enabled INTEGER NOT NULL, check_every_in_minutes INTEGER NOT NULL, checksum INTEGER NOT NULL) STRICT;
CREATE INDEX month_by_period ON month (year, month);
COMMIT;
BEGIN;
INSERT INTO month VALUES(1,2026,1,'January',31,'[{"id":-3,"state":"UNKNOWN","isWorkday":false},{"id":-2,"state":"UNKNOWN","isWorkday":true},{"id":-1,"state":"UNKNOWN","isWorkday":true},{"id":0,"state":"UNKNOWN","isWorkday":true},{"id":1,"state":"IN_OFFICE","isWorkday":true},{"id":2,"state":"UNKNOWN","isWorkday":true},{"id":3,"state":"UNKNOWN","isWorkday":false},{"id":4,"state":"UNKNOWN","isWorkday":false},{"id":5,"state":"UNKNOWN","isWorkday":true},{"id":6,"state":"UNKNOWN","isWorkday":true},{"id":7,"state":"UNKNOWN","isWorkday":true},{"id":8,"state":"UNKNOWN","isWorkday":true},{"id":9,"state":"UNKNOWN","isWorkday":true},{"id":10,"state":"UNKNOWN","isWorkday":false},{"id":11,"state":"UNKNOWN","isWorkday":false},{"id":12,"state":"UNKNOWN","isWorkday":true},{"id":13,"state":"UNKNOWN","isWorkday":true},{"id":14,"state":"UNKNOWN","isWorkday":true},{"id":15,"state":"UNKNOWN","isWorkday":true},{"id":16,"state":"UNKNOWN","isWorkday":true},{"id":17,"state":"UNKNOWN","isWorkday":false},{"id":18,"state":"UNKNOWN","isWorkday":false},{"id":19,"state":"UNKNOWN","isWorkday":true},{"id":20,"state":"UNKNOWN","isWorkday":true},{"id":21,"state":"UNKNOWN","isWorkday":true},{"id":22,"state":"UNKNOWN","isWorkday":true},{"id":23,"state":"UNKNOWN","isWorkday":true},{"id":24,"state":"UNKNOWN","isWorkday":false},{"id":25,"state":"UNKNOWN","isWorkday":false},{"id":26,"state":"UNKNOWN","isWorkday":true},{"id":27,"state":"UNKNOWN","isWorkday":true},{"id":28,"state":"UNKNOWN","isWorkday":true},{"id":29,"state":"UNKNOWN","isWorkday":true},{"id":30,"state":"UNKNOWN","isWorkday":true},{"id":31,"state":"UNKNOWN","isWorkday":false},{"id":-32,"state":"UNKNOWN","isWorkday":false},{"id":-33,"state":"UNKNOWN","isWorkday":true},{"id":-34,"state":"UNKNOWN","isWorkday":true}]',-1790187357924468236);
INSERT INTO month VALUES(2,2026,2,'February',28,'[{"id":1,"state":"UNKNOWN","isWorkday":false},{"id":2,"state":"IN_OFFICE","isWorkday":true},{"id":3,"state":"UNKNOWN","isWorkday":true},{"id":4,"state":"UNKNOWN","isWorkday":true},{"id":5,"state":"UNKNOWN","isWorkday":true},{"id":6,"state":"UNKNOWN","isWorkday":true},{"id":7,"state":"UNKNOWN","isWorkday":false},{"id":8,"state":"UNKNOWN","isWorkday":false},{"id":9,"state":"UNKNOWN","isWorkday":true},{"id":10,"state":"UNKNOWN","isWorkday":true},{"id":11,"state":"UNKNOWN","isWorkday":true},{"id":12,"state":"UNKNOWN","isWorkday":true},{"id":13,"state":"UNKNOWN","isWorkday":true},{"id":14,"state":"UNKNOWN","isWorkday":false},{"id":15,"state":"UNKNOWN","isWorkday":false},{"id":16,"state":"UNKNOWN","isWorkday":true},{"id":17,"state":"UNKNOWN","isWorkday":true},{"id":18,"state":"UNKNOWN","isWorkday":true},{"id":19,"state":"UNKNOWN","isWorkday":true},{"id":20,"state":"UNKNOWN","isWorkday":true},{"id":21,"state":"UNKNOWN","isWorkday":false},{"id":22,"state":"UNKNOWN","isWorkday":false},{"id":23,"state":"UNKNOWN","isWorkday":true},{"id":24,"state":"UNKNOWN","isWorkday":true},{"id":25,"state":"UNKNOWN","isWorkday":true},{"id":26,"state":"UNKNOWN","isWorkday":true},{"id":27,"state":"UNKNOWN","isWorkday":true},{"id":28,"state":"UNKNOWN","isWorkday":false},{"id":-29,"state":"UNKNOWN","isWorkday":true},{"id":-30,"state":"UNKNOWN","isWorkday":true},{"id":-31,"state":"UNKNOWN","isWorkday":true},{"id":-32,"state":"UNKNOWN","isWorkday":true},{"id":-33,"state":"UNKNOWN","isWorkday":true},{"id":-34,"state":"UNKNOWN","isWorkday":false},{"id":-35,"state":"UNKNOWN","isWorkday":false},{"id":-36,"state":"UNKNOWN","isWorkday":true},{"id":-37,"state":"UNKNOWN","isWorkday":true},{"id":-38,"state":"UNKNOWN","isWorkday":true}]',-2526461908100522877);
INSERT INTO month VALUES(3,2026,3,'March',31,'[{"id":1,"state":"UNKNOWN","isWorkday":false},{"id":2,"state":"UNKNOWN","isWorkday":true},{"id":3,"state":"IN_OFFICE","isWorkday":true},{"id":4,"state":"UNKNOWN","isWorkday":true},{"id":5,"state":"UNKNOWN","isWorkday":true},{"id":6,"state":"UNKNOWN","isWorkday":true},{"id":7,"state":"UNKNOWN","isWorkday":false},{"id":8,"state":"UNKNOWN","isWorkday":false},{"id":9,"state":"UNKNOWN","isWorkday":true},{"id":10,"state":"UNKNOWN","isWorkday":true},{"id":11,"state":"UNKNOWN","isWorkday":true},{"id":12,"state":"UNKNOWN","isWorkday":true},{"id":13,"state":"UNKNOWN","isWorkday":true},{"id":14,"state":"UNKNOWN","isWorkday":false},{"id":15,"state":"UNKNOWN","isWorkday":false},{"id":16,"state":"UNKNOWN","isWorkday":true},{"id":17,"state":"UNKNOWN","isWorkday":true},{"id":18,"state":"UNKNOWN","isWorkday":true},{"id":19,"state":"UNKNOWN","isWorkday":true},{"id":20,"state":"UNKNOWN","isWorkday":true},{"id":21,"state":"UNKNOWN","isWorkday":false},{"id":22,"state":"UNKNOWN","isWorkday":false},{"id":23,"state":"UNKNOWN","isWorkday":true},{"id":24,"state":"UNKNOWN","isWorkday":true},{"id":25,"state":"UNKNOWN","isWorkday":true},{"id":26,"state":"UNKNOWN","isWorkday":true},{"id":27,"state":"UNKNOWN","isWorkday":true},{"id":28,"state":"UNKNOWN","isWorkday":false},{"id":29,"state":"UNKNOWN","isWorkday":false},{"id":30,"state":"UNKNOWN","isWorkday":true},{"id":31,"state":"UNKNOWN","isWorkday":true},{"id":-32,"state":"UNKNOWN","isWorkday":true},{"id":-33,"state":"UNKNOWN","isWorkday":true},{"id":-34,"state":"UNKNOWN","isWorkday":false},{"id":-35,"state":"UNKNOWN","isWorkday":false},{"id":-36,"state":"UNKNOWN","isWorkday":true},{"id":-37,"state":"UNKNOWN","isWorkday":true},{"id":-38,"state":"UNKNOWN","isWorkday":true}]',188364514938620768);
INSERT INTO goal VALUES(1,'6f2c1d0e-8a4b-4c3d-9e5f-0123456789ab','2.50','Team days',-8461469157480929348);
INSERT INTO goal VALUES(2,'f1e2d3c4-b5a6-4978-8a9b-abcdef012345','4.00','',1440910364355875778);
INSERT INTO app_settings VALUES(1,'["6f2c1d0e-8a4b-4c3d-9e5f-0123456789ab","f1e2d3c4-b5a6-4978-8a9b-abcdef012345"]','["Office","Büro 5G"]',1,0,0,1,30,8992733726969694164);
COMMIT;
)";

/// Makes a version-2 store of that, byte for byte as the second released program writes what it added: two changes of a
/// day, one of which takes the other back, a mark of a check, and a note. Never change it either.
inline constexpr const char* releasedAdditions = R"(
BEGIN;
PRAGMA user_version = 2;
CREATE TABLE day_change (pk INTEGER PRIMARY KEY, time INTEGER, date INTEGER, before TEXT, after TEXT, changed_by INTEGER, change_group INTEGER, reverted_group INTEGER, network TEXT, checksum INTEGER);
CREATE TABLE day_note (pk INTEGER PRIMARY KEY, date INTEGER NOT NULL, text TEXT NOT NULL, checksum INTEGER NOT NULL) STRICT;
CREATE INDEX day_note_by_date ON day_note (date);
INSERT INTO day_change VALUES(1,1774947600000,20260331,'UNKNOWN','OUT_OF_OFFICE',1,1,0,'',3041908323336626764);
INSERT INTO day_change VALUES(2,1774947660000,20260331,'OUT_OF_OFFICE','UNKNOWN',3,2,1,'',706943938900068197);
INSERT INTO day_change VALUES(3,1775034000000,20260303,'UNKNOWN','IN_OFFICE',2,3,0,'Büro 5G',6714368158244771355);
INSERT INTO day_note VALUES(1,20260331,'café ''x''
',-7610701975703626946);
COMMIT;
)";

/// Makes a version-3 store of that, byte for byte as the third released program writes what it added: how days count, a
/// rule, and a day with a kind of absence. Never change it either.
inline constexpr const char* releasedCounting = R"(
BEGIN;
PRAGMA user_version = 3;
DROP TABLE day_change;
CREATE TABLE day_change (pk INTEGER PRIMARY KEY, time INTEGER, date INTEGER, before TEXT, after TEXT, changed_by INTEGER, change_group INTEGER, reverted_group INTEGER, network TEXT, absence_before INTEGER, absence_after INTEGER, checksum INTEGER);
CREATE TABLE absence_kind (pk INTEGER PRIMARY KEY, id INTEGER NOT NULL, name TEXT NOT NULL, treatment INTEGER NOT NULL, checksum INTEGER NOT NULL) STRICT;
CREATE TABLE day_absence (pk INTEGER PRIMARY KEY, date INTEGER NOT NULL, kind INTEGER NOT NULL, checksum INTEGER NOT NULL) STRICT;
CREATE TABLE day_off (pk INTEGER PRIMARY KEY, date INTEGER NOT NULL, name TEXT NOT NULL, source INTEGER NOT NULL, checksum INTEGER NOT NULL) STRICT;
CREATE TABLE holiday_region (pk INTEGER PRIMARY KEY, id TEXT NOT NULL, last_year INTEGER NOT NULL, checksum INTEGER NOT NULL) STRICT;
CREATE TABLE work_week (pk INTEGER PRIMARY KEY, first_day INTEGER NOT NULL, weekdays INTEGER NOT NULL, checksum INTEGER NOT NULL) STRICT;
CREATE TABLE counting (pk INTEGER PRIMARY KEY, leaves_out_vacation INTEGER NOT NULL, checksum INTEGER NOT NULL) STRICT;
CREATE TABLE attendance_rule (pk INTEGER PRIMARY KEY, id TEXT NOT NULL, name TEXT NOT NULL, bound INTEGER NOT NULL, amount INTEGER NOT NULL, unit INTEGER NOT NULL, subject INTEGER NOT NULL, absence_kind INTEGER NOT NULL, weekdays INTEGER NOT NULL, span INTEGER NOT NULL, anchor INTEGER NOT NULL, first_month INTEGER NOT NULL, weeks INTEGER NOT NULL, first_day INTEGER NOT NULL, last_day INTEGER NOT NULL, position INTEGER NOT NULL, checksum INTEGER NOT NULL) STRICT;
COMMIT;
BEGIN;
UPDATE month SET days = replace(days, '{"id":30,"state":"UNKNOWN"', '{"id":30,"state":"OUT_OF_OFFICE"'), checksum = -6109648931982802230 WHERE pk = 3;
INSERT INTO day_change VALUES(1,1774947600000,20260331,'UNKNOWN','OUT_OF_OFFICE',1,1,0,'',0,0,9115747166672827821);
INSERT INTO day_change VALUES(2,1774947660000,20260331,'OUT_OF_OFFICE','UNKNOWN',3,2,1,'',0,0,6355347044394340201);
INSERT INTO day_change VALUES(3,1775034000000,20260303,'UNKNOWN','IN_OFFICE',2,3,0,'Büro 5G',0,0,763306576366628264);
INSERT INTO day_change VALUES(4,1775120400000,20260330,'UNKNOWN','OUT_OF_OFFICE',1,4,0,'',0,16,6257950589260394702);
INSERT INTO absence_kind VALUES(1,16,'Elternzeit',3,1765621532079983583);
INSERT INTO day_absence VALUES(1,20260330,16,-6821561480334993718);
INSERT INTO day_off VALUES(1,20260403,'Karfreitag',2,-5559596165425893398);
INSERT INTO holiday_region VALUES(1,'DE-BY',2028,-7286318474282325905);
INSERT INTO work_week VALUES(1,20260202,31,22647302118880264);
INSERT INTO counting VALUES(1,1,-357704464851405758);
INSERT INTO attendance_rule VALUES(1,'7b32d7ab-c0ed-4225-9866-0b81c7884407','Büro',1,200,3,1,0,127,3,0,1,1,0,0,0,2467248573817240953);
COMMIT;
)";
