-- A site to try the programs on: an interlibrary loan centre with libraries in several countries, in English, French and
-- German. Every name is invented; addresses end in example.org and numbers lie in ranges kept for such uses.

-- --- The libraries and what belongs to them ---

INSERT INTO ID_LIBRARY (
    LIBRARY_ID, LIBRARY_ACTIVE, LIBRARY_SYMBOL, INSTITUTION_NAME, LIBRARY, CONTACT, DATE_ENTERED, LAST_MODIFIED,
    PRIME_ADDRESS1, PRIME_CITY, PRIME_PROV_STATE, PRIME_COUNTRY, PRIME_POST_ZIPCODE, BILL_ADDRESS1, BILL_CITY,
    BILL_PROV_STATE, BILL_COUNTRY, BILL_POST_ZIPCODE, FILE_FORMAT, DELIV_METHOD_COPY, DELIV_METHOD_LOAN, DELIV_FAX,
    DELIV_EMAIL, MSG_FORMAT, MSG_METHOD, MSG_EMAIL, ODYSSEY_ADDRESS, INTERNET_ARIEL, DELIVERY_SERVICE, TIMEZONE,
    REQUESTS_PROCESSED, WEIGHTING_FACTOR, CONTACT_PHONE, CONTACT_EMAIL, USER_LOGIN, USER_PASSWORD, LANGUAGE_CODE,
    LIBRARY_TYPE, LIBRARY_CAT, STATS_CAT_LIB1, LOAN_CODE, MAX_COST, MAX_DAYS, BILLING_TYPE, BILLING_RATE,
    BILL_CONTACT, CURRENCY_CODE, LIBRARY_ACCOUNT, QUOTA_TOTAL, QUOTA_FILLED) VALUES
  (10000000, 'Y', 'DE-AUE', 'UNIVERSITÄT AUENFELS', 'UNIVERSITÄTSBIBLIOTHEK', 'KATRIN MÖLLER', '2026-01-03 09:00:00', '2026-10-01 14:00:00', 'Am Lindenhof 4', 'Auenfels', NULL, 'Germany', '99801', 'Am Lindenhof 4', 'Auenfels', NULL, 'Germany', '99801', 'P', 'E', 'M', NULL, 'fernleihe@ub-auenfels.example.org', 'T', 'E', 'ill@ub-auenfels.example.org', NULL, NULL, NULL, 'W. Europe Standard Time', 0, 1.0, '+49 30 23125 101', 'moeller@ub-auenfels.example.org', 'deaue', 'change-aue', 'GER', 'U', 'CO', 'RES', 'N', 25.0, 30, 'I', 'A', 'ACCOUNTS OFFICE', 'EUR', 'DE-1001', NULL, NULL),
  (10000001, 'Y', 'DE-HBR', 'HOCHSCHULE HELLBRÜCK', 'HOCHSCHULBIBLIOTHEK', 'JENS OSTERMANN', '2026-02-10 09:02:00', '2026-10-02 14:03:00', 'Kanalstraße 17', 'Hellbrück', NULL, 'Germany', '23970', 'Kanalstraße 17', 'Hellbrück', NULL, 'Germany', '23970', 'P', 'E', 'M', NULL, 'fernleihe@hb-hellbrueck.example.org', 'T', 'E', 'ill@hb-hellbrueck.example.org', NULL, NULL, NULL, 'W. Europe Standard Time', 37, 1.25, '+49 30 23125 102', 'ostermann@hb-hellbrueck.example.org', 'dehbr', 'change-hbr', 'GER', 'U', 'CO', 'TEC', 'N', 30.0, 45, 'I', 'A', 'ACCOUNTS OFFICE', 'EUR', 'DE-1014', NULL, NULL),
  (10000002, 'Y', 'DE-RDS', 'LANDESBIBLIOTHEK RIEDSTEIN', 'ABTEILUNG FERNLEIHE', 'URSULA BÄCHLE', '2026-03-17 09:04:00', '2026-10-03 14:06:00', 'Schlossplatz 1', 'Riedstein', NULL, 'Germany', '72501', 'Schlossplatz 1', 'Riedstein', NULL, 'Germany', '72501', 'P', 'S', 'C', NULL, 'leihe@lb-riedstein.example.org', 'T', 'E', 'ill@lb-riedstein.example.org', NULL, NULL, 'RIED-01', 'W. Europe Standard Time', 74, 1.5, '+49 30 23125 103', 'baechle@lb-riedstein.example.org', 'derds', 'change-rds', 'GER', 'N', 'NA', 'GOV', 'N', 35.0, 60, 'D', 'R', 'ACCOUNTS OFFICE', 'EUR', 'DE-1027', NULL, NULL),
  (10000003, 'Y', 'DE-MDK', 'KLINIKUM MOORDIEK', 'MEDIZINISCHE BIBLIOTHEK', 'DR. SVEN HAGEDORN', '2026-04-24 09:06:00', '2026-10-04 14:09:00', 'Klinikring 22', 'Moordiek', NULL, 'Germany', '25436', 'Klinikring 22', 'Moordiek', NULL, 'Germany', '25436', 'P', 'F', 'M', '+49 30 23125 904', 'bibliothek@klinikum-moordiek.example.org', 'T', 'F', 'ill@klinikum-moordiek.example.org', NULL, NULL, NULL, 'W. Europe Standard Time', 111, 1.75, '+49 30 23125 104', 'hagedorn@klinikum-moordiek.example.org', 'demdk', 'change-mdk', 'GER', 'H', 'OT', 'MED', 'N', 40.0, 30, 'I', 'C', 'ACCOUNTS OFFICE', 'EUR', 'DE-1040', NULL, NULL),
  (10000004, 'Y', 'DE-WKA', 'STADT WOLKENAU', 'STADTBIBLIOTHEK', 'RENATE THIELE', '2026-05-06 09:08:00', '2026-10-05 14:12:00', 'Markt 8', 'Wolkenau', NULL, 'Germany', '09434', 'Markt 8', 'Wolkenau', NULL, 'Germany', '09434', 'P', 'M', 'M', NULL, 'stadtbibliothek@wolkenau.example.org', 'T', 'E', 'ill@wolkenau.example.org', NULL, NULL, NULL, 'W. Europe Standard Time', 148, 1.0, '+49 30 23125 105', 'thiele@wolkenau.example.org', 'dewka', 'change-wka', 'GER', 'M', 'OT', 'PUB', 'N', 45.0, 45, 'F', 'A', 'ACCOUNTS OFFICE', 'EUR', 'DE-1053', NULL, NULL),
  (10000005, 'Y', 'DE-TBG', 'TECHNISCHE WERKE TANNBERG AG', 'WERKSBIBLIOTHEK', 'MARKUS ÖHLER', '2026-06-13 09:10:00', '2026-10-06 14:15:00', 'Industriepark 3', 'Tannberg', NULL, 'Germany', '84574', 'Industriepark 3', 'Tannberg', NULL, 'Germany', '84574', 'P', 'E', 'C', NULL, 'info@tw-tannberg.example.org', 'T', 'E', 'ill@tw-tannberg.example.org', NULL, NULL, 'TWT-77', 'W. Europe Standard Time', 185, 1.25, '+49 30 23125 106', 'oehler@tw-tannberg.example.org', 'detbg', 'change-tbg', 'GER', 'S', 'OT', 'COM', 'N', 25.0, 60, 'C', 'C', 'ACCOUNTS OFFICE', 'EUR', 'DE-1066', NULL, NULL),
  (10000006, 'Y', 'FR-BRV', 'UNIVERSITÉ DE BRÉVANNES', 'BIBLIOTHÈQUE UNIVERSITAIRE', 'HÉLÈNE CARPENTIER', '2026-07-20 09:12:00', '2026-10-07 14:18:00', '3 quai des Tanneurs', 'Brévannes', NULL, 'France', '58210', '3 quai des Tanneurs', 'Brévannes', NULL, 'France', '58210', 'P', 'E', 'M', NULL, 'peb@bu-brevannes.example.org', 'T', 'E', 'ill@bu-brevannes.example.org', NULL, NULL, NULL, 'Romance Standard Time', 222, 1.5, '+33 1 99 00 11 01', 'carpentier@bu-brevannes.example.org', 'frbrv', 'change-brv', 'FRE', 'U', 'CO', 'RES', 'N', 30.0, 30, 'I', 'A', 'ACCOUNTS OFFICE', 'EUR', 'FR-1079', NULL, NULL),
  (10000007, 'Y', 'FR-SMV', 'UNIVERSITÉ DE SAINT-MORVAN', 'BIBLIOTHÈQUE DES SCIENCES', 'JULIEN LEFÈVRE', '2026-08-27 09:14:00', '2026-10-08 14:21:00', '12 rue du Moulin', 'Saint-Morvan', NULL, 'France', '29470', '12 rue du Moulin', 'Saint-Morvan', NULL, 'France', '29470', 'P', 'E', 'M', NULL, 'peb@bs-saintmorvan.example.org', 'T', 'E', 'ill@bs-saintmorvan.example.org', NULL, NULL, NULL, 'Romance Standard Time', 19, 1.75, '+33 1 99 00 11 02', 'lefevre@bs-saintmorvan.example.org', 'frsmv', 'change-smv', 'FRE', 'U', 'CO', 'TEC', 'N', 35.0, 45, 'I', 'A', 'ACCOUNTS OFFICE', 'EUR', 'FR-1092', NULL, NULL),
  (10000008, 'Y', 'FR-CLX', 'VILLE DE CLAIRVAUX-SUR-ORNE', 'MÉDIATHÈQUE MUNICIPALE', 'ODILE GARNIER', '2026-09-09 09:16:00', '2026-10-09 14:24:00', 'Place de la Halle', 'Clairvaux-sur-Orne', NULL, 'France', '61420', 'Place de la Halle', 'Clairvaux-sur-Orne', NULL, 'France', '61420', 'P', 'M', 'M', NULL, 'mediatheque@clairvaux.example.org', 'T', 'E', 'ill@clairvaux.example.org', NULL, NULL, NULL, 'Romance Standard Time', 56, 1.0, '+33 1 99 00 11 03', 'garnier@clairvaux.example.org', 'frclx', 'change-clx', 'FRE', 'M', 'OT', 'PUB', 'N', 40.0, 60, 'F', 'N', 'ACCOUNTS OFFICE', 'EUR', 'FR-1105', NULL, NULL),
  (10000009, 'Y', 'FR-HMT', 'HÔPITAL MONTRIEUX', 'CENTRE DE DOCUMENTATION', 'BASTIEN ROUX', '2026-01-16 09:18:00', '2026-10-10 14:27:00', '45 avenue des Platanes', 'Montrieux', NULL, 'France', '83390', '45 avenue des Platanes', 'Montrieux', NULL, 'France', '83390', 'P', 'S', 'M', '+33 1 99 00 11 94', 'doc@hopital-montrieux.example.org', 'T', 'E', 'ill@hopital-montrieux.example.org', NULL, NULL, NULL, 'Romance Standard Time', 93, 1.25, '+33 1 99 00 11 04', 'roux@hopital-montrieux.example.org', 'frhmt', 'change-hmt', 'FRE', 'H', 'OT', 'MED', 'N', 45.0, 30, 'I', 'A', 'ACCOUNTS OFFICE', 'EUR', 'FR-1118', NULL, NULL),
  (10000010, 'Y', 'CA-OMR', 'UNIVERSITÉ DE LA RIVIÈRE-AUX-ORMES', 'BIBLIOTHÈQUE CENTRALE', 'GENEVIÈVE TREMBLAY', '2026-02-23 09:20:00', '2026-10-11 14:30:00', '2500 boul. des Érables', 'Rivière-aux-Ormes', 'QC', 'Canada', 'J0K 1A0', '2500 boul. des Érables', 'Rivière-aux-Ormes', 'QC', 'Canada', 'J0K 1A0', 'P', 'O', 'C', '(418) 555-0131', 'peb@bibl-ormes.example.org', 'T', 'E', 'ill@bibl-ormes.example.org', '192.0.2.41/OMR', NULL, 'TAXI-QC1', 'Eastern Standard Time', 130, 1.5, '(418) 555-0130', 'tremblay@bibl-ormes.example.org', 'caomr', 'change-omr', 'FRE', 'U', 'CO', 'RES', 'N', 25.0, 45, 'I', 'A', 'ACCOUNTS OFFICE', 'CAD', 'CA-1131', NULL, NULL),
  (10000011, 'Y', 'CA-KLM', 'KELMORE UNIVERSITY', 'MAIN LIBRARY', 'BRIAN ASHWORTH', '2026-03-05 09:22:00', '2026-10-12 14:33:00', '88 College Street', 'Kelmore', 'ON', 'Canada', 'K9H 2B4', '88 College Street', 'Kelmore', 'ON', 'Canada', 'K9H 2B4', 'P', 'O', 'C', '(613) 555-0142', 'ill@lib-kelmore.example.org', 'T', 'E', 'ill@lib-kelmore.example.org', '192.0.2.42/KLM', NULL, 'COUR-KLM', 'Eastern Standard Time', 167, 1.75, '(613) 555-0141', 'ashworth@lib-kelmore.example.org', 'caklm', 'change-klm', 'ENG', 'U', 'CO', 'RES', 'N', 30.0, 60, 'I', 'A', 'ACCOUNTS OFFICE', 'CAD', 'CA-1144', NULL, NULL),
  (10000012, 'Y', 'CA-WLB', 'WILLOW BAY REGIONAL HOSPITAL', 'HEALTH SCIENCES LIBRARY', 'PRIYA NAIR', '2026-04-12 09:24:00', '2026-10-13 14:36:00', '1 Harbour Road', 'Willow Bay', 'NS', 'Canada', 'B3H 4R2', '1 Harbour Road', 'Willow Bay', 'NS', 'Canada', 'B3H 4R2', 'P', 'F', 'M', '(902) 555-0153', 'library@willowbay.example.org', 'T', 'E', 'ill@willowbay.example.org', NULL, NULL, NULL, 'Atlantic Standard Time', 204, 1.0, '(902) 555-0152', 'nair@willowbay.example.org', 'cawlb', 'change-wlb', 'ENG', 'H', 'OT', 'MED', 'N', 35.0, 30, 'I', 'A', 'ACCOUNTS OFFICE', 'CAD', 'CA-1157', NULL, NULL),
  (10000013, 'Y', 'CA-PRC', 'PRAIRIE CROSSING PUBLIC LIBRARY', 'CENTRAL BRANCH', 'DALE KOWALCHUK', '2026-05-19 09:26:00', '2026-10-14 14:39:00', '410 Railway Avenue', 'Prairie Crossing', 'SK', 'Canada', 'S4P 3Y2', '410 Railway Avenue', 'Prairie Crossing', 'SK', 'Canada', 'S4P 3Y2', 'P', 'M', 'M', NULL, 'ill@prairiecrossing.example.org', 'T', 'E', 'ill@prairiecrossing.example.org', NULL, NULL, NULL, 'Canada Central Standard Time', 1, 1.25, '(306) 555-0161', 'kowalchuk@prairiecrossing.example.org', 'caprc', 'change-prc', 'ENG', 'M', 'OT', 'PUB', 'N', 40.0, 45, 'F', 'R', 'ACCOUNTS OFFICE', 'CAD', 'CA-1170', NULL, NULL),
  (10000014, 'Y', 'GB-ELD', 'UNIVERSITY OF ELDERSHAM', 'BARROWDALE HALL LIBRARY', 'FIONA MACREADY', '2026-06-26 09:28:00', '2026-10-15 14:42:00', 'Abbey Walk', 'Eldersham', 'Norfolk', 'United Kingdom', 'NR99 1AA', 'Abbey Walk', 'Eldersham', 'Norfolk', 'United Kingdom', 'NR99 1AA', 'P', 'S', 'M', NULL, 'ill@lib-eldersham.example.org', 'T', 'E', 'ill@lib-eldersham.example.org', NULL, NULL, NULL, 'GMT Standard Time', 38, 1.5, '+44 1632 960101', 'macready@lib-eldersham.example.org', 'gbeld', 'change-eld', 'ENG', 'U', 'CO', 'RES', 'N', 45.0, 60, 'I', 'A', 'ACCOUNTS OFFICE', 'GBP', 'GB-1183', NULL, NULL),
  (10000015, 'Y', 'GB-STK', 'STOKEBRIDGE COLLEGE', 'LEARNING CENTRE', 'OWEN PRITCHARD', '2026-07-08 09:30:00', '2026-10-16 14:45:00', 'College Lane', 'Stokebridge', 'Shropshire', 'United Kingdom', 'SY99 2BB', 'College Lane', 'Stokebridge', 'Shropshire', 'United Kingdom', 'SY99 2BB', 'P', 'E', 'M', NULL, 'learning@stokebridge.example.org', 'T', 'E', 'ill@stokebridge.example.org', NULL, NULL, NULL, 'GMT Standard Time', 75, 1.75, '+44 1632 960102', 'pritchard@stokebridge.example.org', 'gbstk', 'change-stk', 'ENG', 'U', 'OT', 'COL', 'N', 25.0, 30, 'I', 'A', 'ACCOUNTS OFFICE', 'GBP', 'GB-1196', NULL, NULL),
  (10000016, 'Y', 'GB-HRT', 'HARTLOW HOSPITAL TRUST', 'STAFF LIBRARY', 'AMARA OKAFOR', '2026-08-15 09:32:00', '2026-10-17 14:48:00', 'Infirmary Road', 'Hartlow', 'Kent', 'United Kingdom', 'ME99 3CC', 'Infirmary Road', 'Hartlow', 'Kent', 'United Kingdom', 'ME99 3CC', 'P', 'E', 'M', '+44 1632 960193', 'library@hartlow.example.org', 'T', 'E', 'ill@hartlow.example.org', NULL, NULL, NULL, 'GMT Standard Time', 112, 1.0, '+44 1632 960103', 'okafor@hartlow.example.org', 'gbhrt', 'change-hrt', 'ENG', 'H', 'OT', 'MED', 'N', 30.0, 45, 'V', 'A', 'ACCOUNTS OFFICE', 'GBP', 'GB-1209', NULL, NULL),
  (10000017, 'Y', 'GB-DPL', 'DUNPOOL LEGAL CHAMBERS', 'LIBRARY AND INFORMATION', 'RUPERT SALLOW', '2026-09-22 09:34:00', '2026-10-18 14:51:00', '7 Exchange Row', 'Dunpool', 'Merseyside', 'United Kingdom', 'L99 4DD', '7 Exchange Row', 'Dunpool', 'Merseyside', 'United Kingdom', 'L99 4DD', 'P', 'E', 'C', NULL, 'information@dunpool.example.org', 'T', 'E', 'ill@dunpool.example.org', NULL, NULL, 'BOX-41125', 'GMT Standard Time', 149, 1.25, '+44 1632 960104', 'sallow@dunpool.example.org', 'gbdpl', 'change-dpl', 'ENG', 'S', 'OT', 'COM', 'N', 35.0, 60, 'C', 'C', 'ACCOUNTS OFFICE', 'GBP', 'GB-1222', NULL, NULL),
  (10000018, 'Y', 'US-NFK', 'NORTHFORK STATE UNIVERSITY', 'HALDEN LIBRARY', 'MARIA DELGADO', '2026-01-04 09:36:00', '2026-10-19 14:54:00', '1200 University Drive', 'Northfork', 'MN', 'United States', '55499', '1200 University Drive', 'Northfork', 'MN', 'United States', '55499', 'P', 'O', 'C', '(651) 555-0172', 'ill@halden-northfork.example.org', 'T', 'E', 'ill@halden-northfork.example.org', '192.0.2.61/NFK', NULL, 'COUR-NFK', 'Central Standard Time', 186, 1.5, '(651) 555-0171', 'delgado@halden-northfork.example.org', 'usnfk', 'change-nfk', 'ENG', 'U', 'CO', 'RES', 'N', 40.0, 30, 'I', 'A', 'ACCOUNTS OFFICE', 'USD', 'US-1235', NULL, NULL),
  (10000019, 'Y', 'US-CPR', 'COPPERHILL INSTITUTE OF TECHNOLOGY', 'RESEARCH LIBRARY', 'WEI ZHANG', '2026-02-11 09:38:00', '2026-10-20 14:57:00', '77 Foundry Avenue', 'Copperhill', 'PA', 'United States', '18999', '77 Foundry Avenue', 'Copperhill', 'PA', 'United States', '18999', 'P', 'E', 'C', '(570) 555-0182', 'docdel@copperhill.example.org', 'T', 'E', 'ill@copperhill.example.org', NULL, NULL, NULL, 'Eastern Standard Time', 223, 1.75, '(570) 555-0181', 'zhang@copperhill.example.org', 'uscpr', 'change-cpr', 'ENG', 'U', 'CO', 'TEC', 'N', 45.0, 45, 'I', 'A', 'ACCOUNTS OFFICE', 'USD', 'US-1248', NULL, NULL),
  (10000020, 'Y', 'US-SJM', 'SAN JACINTO MESA MEDICAL CENTER', 'MEDICAL LIBRARY', 'TERESA WHITFIELD', '2026-03-18 09:40:00', '2026-10-21 14:00:00', '900 Mesa Boulevard', 'San Jacinto Mesa', 'NM', 'United States', '87999', '900 Mesa Boulevard', 'San Jacinto Mesa', 'NM', 'United States', '87999', 'P', 'F', 'M', '(505) 555-0192', 'library@sjmesa.example.org', 'T', 'E', 'ill@sjmesa.example.org', NULL, NULL, NULL, 'Mountain Standard Time', 20, 1.0, '(505) 555-0191', 'whitfield@sjmesa.example.org', 'ussjm', 'change-sjm', 'ENG', 'H', 'OT', 'MED', 'N', 25.0, 60, 'I', 'A', 'ACCOUNTS OFFICE', 'USD', 'US-1261', NULL, NULL),
  (10000021, 'Y', 'US-BRK', 'BRACKWATER COUNTY', 'PUBLIC LIBRARY SYSTEM', 'HAROLD DEMPSEY', '2026-04-25 09:42:00', '2026-10-22 14:03:00', '15 Courthouse Square', 'Brackwater', 'GA', 'United States', '30999', '15 Courthouse Square', 'Brackwater', 'GA', 'United States', '30999', 'P', 'M', 'M', NULL, 'ill@brackwater.example.org', 'T', 'E', 'ill@brackwater.example.org', NULL, NULL, NULL, 'Eastern Standard Time', 57, 1.25, '(404) 555-0112', 'dempsey@brackwater.example.org', 'usbrk', 'change-brk', 'ENG', 'M', 'OT', 'PUB', 'N', 30.0, 30, 'F', 'R', 'ACCOUNTS OFFICE', 'USD', 'US-1274', NULL, NULL),
  (10000022, 'Y', 'US-MRL', 'MARELLIS PHARMACEUTICALS', 'INFORMATION CENTER', 'NADIA PETROVA', '2026-05-07 09:44:00', '2026-10-23 14:06:00', '3 Seaport Plaza', 'Harbor Point', 'CA', 'United States', '94999', '3 Seaport Plaza', 'Harbor Point', 'CA', 'United States', '94999', 'P', 'E', 'C', NULL, 'infocenter@marellis.example.org', 'T', 'E', 'ill@marellis.example.org', NULL, NULL, NULL, 'Pacific Standard Time', 94, 1.5, '(415) 555-0122', 'petrova@marellis.example.org', 'usmrl', 'change-mrl', 'ENG', 'S', 'OT', 'COM', 'N', 35.0, 45, 'C', 'C', 'ACCOUNTS OFFICE', 'USD', 'US-1287', NULL, NULL),
  (10000023, 'Y', 'ES-VLR', 'UNIVERSIDAD DE VALDORRIA', 'BIBLIOTECA GENERAL', 'LUCÍA FERNÁNDEZ', '2026-06-14 09:46:00', '2026-10-24 14:09:00', 'Plaza del Rector 2', 'Valdorria', 'León', 'Spain', '24890', 'Plaza del Rector 2', 'Valdorria', 'León', 'Spain', '24890', 'P', 'E', 'M', NULL, 'pi@bib-valdorria.example.org', 'T', 'E', 'ill@bib-valdorria.example.org', NULL, NULL, NULL, 'Romance Standard Time', 131, 1.75, '+34 900 555 101', 'fernandez@bib-valdorria.example.org', 'esvlr', 'change-vlr', 'ENG', 'U', 'FO', 'RES', 'N', 40.0, 60, 'I', 'A', 'ACCOUNTS OFFICE', 'EUR', 'ES-1300', NULL, NULL),
  (10000024, 'Y', 'ES-MTR', 'HOSPITAL DE MONTERRUBIO', 'BIBLIOTECA DE CIENCIAS DE LA SALUD', 'ÁLVARO NÚÑEZ', '2026-07-21 09:48:00', '2026-10-25 14:12:00', 'Calle de la Fuente 30', 'Monterrubio', 'Segovia', 'Spain', '40990', 'Calle de la Fuente 30', 'Monterrubio', 'Segovia', 'Spain', '40990', 'P', 'S', 'M', '+34 900 555 192', 'biblioteca@monterrubio.example.org', 'T', 'E', 'ill@monterrubio.example.org', NULL, NULL, NULL, 'Romance Standard Time', 168, 1.0, '+34 900 555 102', 'nunez@monterrubio.example.org', 'esmtr', 'change-mtr', 'ENG', 'H', 'FO', 'MED', 'N', 45.0, 30, 'I', 'A', 'ACCOUNTS OFFICE', 'EUR', 'ES-1313', NULL, NULL),
  (10000025, 'Y', 'IT-RCV', 'UNIVERSITÀ DI ROCCAVENTO', 'BIBLIOTECA DI ATENEO', 'CHIARA BONFANTI', '2026-08-03 09:50:00', '2026-10-26 14:15:00', 'Via delle Querce 9', 'Roccavento', 'AL', 'Italy', '15099', 'Via delle Querce 9', 'Roccavento', 'AL', 'Italy', '15099', 'P', 'E', 'M', NULL, 'ill@bib-roccavento.example.org', 'T', 'E', 'ill@bib-roccavento.example.org', NULL, NULL, NULL, 'W. Europe Standard Time', 205, 1.25, '+39 06 555 0101', 'bonfanti@bib-roccavento.example.org', 'itrcv', 'change-rcv', 'ENG', 'U', 'FO', 'RES', 'N', 25.0, 45, 'I', 'A', 'ACCOUNTS OFFICE', 'EUR', 'IT-1326', NULL, NULL),
  (10000026, 'Y', 'PL-BRZ', 'UNIWERSYTET W BRZEZOWIE', 'BIBLIOTEKA UNIWERSYTECKA', 'AGNIESZKA WÓJCIK', '2026-09-10 09:52:00', '2026-10-27 14:18:00', 'ul. Lipowa 14', 'Brzezów', NULL, 'Poland', '18-999', 'ul. Lipowa 14', 'Brzezów', NULL, 'Poland', '18-999', 'P', 'E', 'M', NULL, 'wypozyczalnia@bu-brzezow.example.org', 'T', 'E', 'ill@bu-brzezow.example.org', NULL, NULL, NULL, 'Central European Standard Time', 2, 1.5, '+48 22 555 0101', 'wojcik@bu-brzezow.example.org', 'plbrz', 'change-brz', 'ENG', 'U', 'FO', 'RES', 'N', 30.0, 60, 'I', 'R', 'ACCOUNTS OFFICE', 'EUR', 'PL-1339', NULL, NULL),
  (10000027, 'Y', 'AU-WRN', 'WARRENDALE UNIVERSITY', 'FERNCREEK LIBRARY', 'KIRSTY HOLLINS', '2026-01-17 09:54:00', '2026-10-28 14:21:00', 'Campus Drive', 'Warrendale', 'NSW', 'Australia', '2999', 'Campus Drive', 'Warrendale', 'NSW', 'Australia', '2999', 'P', 'E', 'C', NULL, 'docdel@warrendale.example.org', 'T', 'E', 'ill@warrendale.example.org', NULL, NULL, NULL, 'AUS Eastern Standard Time', 39, 1.75, '+61 2 5550 0101', 'hollins@warrendale.example.org', 'auwrn', 'change-wrn', 'ENG', 'U', 'FO', 'RES', 'N', 35.0, 30, 'I', 'A', 'ACCOUNTS OFFICE', 'AUD', 'AU-1352', NULL, NULL),
  (10000028, 'Y', 'NZ-KPT', 'KAPITOA RESEARCH INSTITUTE', 'SCIENCE LIBRARY', 'HEMI WALKER', '2026-02-24 09:56:00', '2026-10-29 14:24:00', '21 Totara Street', 'Kapitoa', NULL, 'New Zealand', '5999', '21 Totara Street', 'Kapitoa', NULL, 'New Zealand', '5999', 'P', 'S', 'M', NULL, 'library@kapitoa.example.org', 'T', 'E', 'ill@kapitoa.example.org', NULL, NULL, NULL, 'New Zealand Standard Time', 76, 1.0, '+64 4 555 0101', 'walker@kapitoa.example.org', 'nzkpt', 'change-kpt', 'ENG', 'S', 'FO', 'TEC', 'N', 40.0, 45, 'I', 'A', 'ACCOUNTS OFFICE', 'NZD', 'NZ-1365', NULL, NULL),
  (10000029, 'P', 'GB-PND', 'PENDRAKE MUSEUM', 'CURATORS LIBRARY', 'SIMON ALDOUS', '2026-03-06 09:58:00', '2026-10-30 14:27:00', 'Castle Green', 'Pendrake', 'Cornwall', 'United Kingdom', 'TR99 5EE', 'Castle Green', 'Pendrake', 'Cornwall', 'United Kingdom', 'TR99 5EE', 'P', 'M', 'M', NULL, 'curators@pendrake.example.org', 'T', 'E', 'ill@pendrake.example.org', NULL, NULL, NULL, 'GMT Standard Time', 113, 1.25, '+44 1632 960105', 'aldous@pendrake.example.org', 'gbpnd', 'change-pnd', 'ENG', 'S', 'OT', 'GOV', 'N', 45.0, 60, 'F', 'N', 'ACCOUNTS OFFICE', 'GBP', 'GB-1378', NULL, NULL),
  (10000030, 'N', 'FR-ANC', 'ANCIENNE ACADÉMIE DE LUNAC', 'BIBLIOTHÈQUE FERMÉE', 'PAUL MERCIER', '2026-04-13 09:00:00', '2026-10-31 14:30:00', 'Rue Haute', 'Lunac', NULL, 'France', '12270', 'Rue Haute', 'Lunac', NULL, 'France', '12270', 'P', 'M', 'M', NULL, 'archives@lunac.example.org', 'T', 'E', 'ill@lunac.example.org', NULL, NULL, NULL, 'Romance Standard Time', 150, 1.5, '+33 1 99 00 11 05', 'mercier@lunac.example.org', 'franc', 'change-anc', 'FRE', 'S', 'OT', 'GOV', 'N', 25.0, 30, 'F', 'N', 'ACCOUNTS OFFICE', 'EUR', 'FR-1391', NULL, NULL),
  (10000031, 'Y', 'DE-LES', 'LESERINNEN UND LESER AUENFELS', 'BENUTZER OHNE BIBLIOTHEK', 'KATRIN MÖLLER', '2026-05-20 09:02:00', '2026-10-31 14:33:00', 'Am Lindenhof 4', 'Auenfels', NULL, 'Germany', '99801', 'Am Lindenhof 4', 'Auenfels', NULL, 'Germany', '99801', 'P', 'P', 'P', NULL, 'leser@ub-auenfels.example.org', 'T', 'E', 'ill@ub-auenfels.example.org', NULL, NULL, NULL, 'W. Europe Standard Time', 187, 1.75, '+49 30 23125 101', 'moeller@ub-auenfels.example.org', NULL, NULL, 'GER', 'P', 'BR', 'RES', 'N', 30.0, 45, 'F', 'N', 'ACCOUNTS OFFICE', 'EUR', 'DE-1404', NULL, NULL);
UPDATE ID_LIBRARY SET CREDIT_CARD = 'UC', CREDIT_CARD_NAME = 'RUPERT SALLOW', CREDIT_CARD_EXP = '11/28' WHERE LIBRARY_ID = 10000017;
UPDATE ID_LIBRARY SET CREDIT_CARD = 'CC', CREDIT_CARD_NAME = 'NADIA PETROVA', CREDIT_CARD_EXP = '11/28' WHERE LIBRARY_ID = 10000022;

UPDATE ID_NEXT_LIBRARY SET NEXT_LIBRARY = 10000032;

UPDATE ID_LIBRARY SET MSG_FAX = '+49 30 23125 904' WHERE LIBRARY_ID = 10000003;
UPDATE ID_LIBRARY SET CONTACT_PHONE2 = '+49 30 23125 111', CONTACT_FAX = '+49 30 23125 910', CONTACT_EMAIL2 = 'vertretung@ub-auenfels.example.org', PRIME_ADDRESS2 = 'Hintereingang', NOTE = 'Annahme werktags bis 16 Uhr', REPLY_ADDRESS_ISO_SMTP = 'iso-ill@ub-auenfels.example.org', REPLY_ADDRESS_ISO_TCP = 'ill.ub-auenfels.example.org:499', ADD_CURRENT_SUPPLIER = 'Y' WHERE LIBRARY_ID = 10000000;
UPDATE ID_LIBRARY SET NOTICE = 'Fermeture annuelle : pas de prêt pendant deux semaines', NOTICE_SDATE = '2026-12-21', NOTICE_EDATE = '2027-01-04' WHERE LIBRARY_ID = 10000006;
UPDATE ID_LIBRARY SET NOTICE = 'Moving to a new building; expect delays of a week', NOTICE_SDATE = '2026-11-02', NOTICE_EDATE = '2026-11-30', NOTE = 'Ask for Priya before 3 pm', ADD_CURRENT_SUPPLIER = 'N' WHERE LIBRARY_ID = 10000012;
UPDATE ID_LIBRARY SET REPLY_ADDRESS_ISO_TCP = 'ill.lib-kelmore.example.org:499', REPLY_ADDRESS_GSM = 'gsm@lib-kelmore.example.org', CONTACT_FAX2 = '(613) 555-0143' WHERE LIBRARY_ID = 10000011;
UPDATE ID_LIBRARY SET QUOTA_TOTAL = 500, QUOTA_FILLED = 127, QUOTA_RESET_DATE = '2027-01-01' WHERE LIBRARY_ID IN (10000000, 10000006, 10000011, 10000014, 10000018);
UPDATE ID_LIBRARY SET QUOTA_TOTAL = 40, QUOTA_FILLED = 38, QUOTA_RESET_DATE = '2027-04-01' WHERE LIBRARY_ID = 10000017;
UPDATE ID_LIBRARY SET DOCLINE_SYMBOL = 'MDK001' WHERE LIBRARY_ID = 10000003;
UPDATE ID_LIBRARY SET DOCLINE_SYMBOL = 'WLB042', RAPID_CODE = 'WLBMED', RAPID_BRANCH_NAME = 'Health Sciences', RAPID_USER_NAME = 'wlbuser', RAPID_PASSWORD = 'harbour-17', RAPID_ALLOW_LOCAL = 'N' WHERE LIBRARY_ID = 10000012;
UPDATE ID_LIBRARY SET DOCLINE_SYMBOL = 'NMSJM1' WHERE LIBRARY_ID = 10000020;
UPDATE ID_LIBRARY SET RAPID_CODE = 'NFKMAIN', RAPID_BRANCH_NAME = 'Halden Library', RAPID_USER_NAME = 'nfkill', RAPID_PASSWORD = 'prairie-88', RAPID_ALLOW_LOCAL = 'Y', VORN_SYMBOL = 'NFKMN', VORN_USER_ID = 'nfk-ill', VORN_PASSWORD = 'vorn-4711', VORN_SERVICE = '1', VORN_USE_IFM = 'Y', VORN_IFM_MAX_COST = 45.00 WHERE LIBRARY_ID = 10000018;
UPDATE ID_LIBRARY SET VORN_SYMBOL = 'CPRPA', VORN_SERVICE = '2', VORN_USE_IFM = 'N' WHERE LIBRARY_ID = 10000019;
UPDATE ID_LIBRARY SET VORN_SYMBOL = 'KLMON', VORN_USER_ID = 'klm-ill', VORN_PASSWORD = 'vorn-2044', VORN_SERVICE = '3', VORN_USE_IFM = 'N' WHERE LIBRARY_ID = 10000011;
UPDATE ID_LIBRARY SET BL_USER_ID = 'ELDERSHAM01', BL_PASSWORD = 'supply-3390', FD_SYMBOL = 'ELD', AGENT_SYMBOL = 'AG-ELD' WHERE LIBRARY_ID = 10000014;
UPDATE ID_LIBRARY SET BL_USER_ID = 'STOKEB01', BL_PASSWORD = 'supply-5512' WHERE LIBRARY_ID = 10000015;
UPDATE ID_LIBRARY SET NLNZ_SYMBOL = 'KPT' WHERE LIBRARY_ID = 10000028;
UPDATE ID_LIBRARY SET STATS_CAT_LIB2 = 'MED', STATS_CAT_LIB3 = 'TEC' WHERE LIBRARY_ID IN (10000000, 10000006, 10000018);

INSERT INTO ID_DEPARTMENT (LIBRARY_ID, DEPARTMENT, DEPARTMENT_DESC, DEPARTMENT_ADDR, NCIP_DEPARTMENT) VALUES
  (10000000, 'BIO', 'Biology', 'Building C, room 12', 'BIOL'),
  (10000000, 'CHE', 'Chemistry', 'Building C, room 40', 'CHEM'),
  (10000000, 'GER', 'German studies', 'Main building, 2nd floor', NULL),
  (10000000, 'LAW', 'Law', 'Lindenhof 6', 'JURA'),
  (10000006, 'HIS', 'History', 'Bâtiment A', 'HIST'),
  (10000006, 'MAT', 'Mathematics', 'Bâtiment D', NULL),
  (10000010, 'GEN', 'Genetics', 'Pavillon des sciences', NULL),
  (10000011, 'EDU', 'Education', 'Kelmore Hall', 'EDUC'),
  (10000011, 'ENG', 'Engineering', 'Lab block 3', 'ENGR'),
  (10000014, 'ART', 'History of art', 'Abbey Walk', NULL),
  (10000018, 'AGR', 'Agriculture', 'South campus', 'AGRI'),
  (10000018, 'VET', 'Veterinary medicine', 'South campus', 'VETM');

INSERT INTO ID_PICKUP_LOCATION (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC, PICKUP_LOCATION_ILS, DELIVERY_SYSTEM_CODE) VALUES
  (10000000, 'M', 'Main desk', 'UB-MAIN', 'AUE-1'),
  (10000000, 'L', 'Law library', 'UB-LAW', 'AUE-2'),
  (10000000, 'S', 'Science library', NULL, 'AUE-3'),
  (10000006, 'C', 'Central hall', 'BU-C', NULL),
  (10000006, 'S', 'Science reading room', 'BU-S', NULL),
  (10000011, 'A', 'Ashworth Commons', 'KLM-AC', 'K1'),
  (10000011, 'M', 'Main desk', 'KLM-MAIN', 'K2'),
  (10000018, 'H', 'Halden desk', 'HALDEN', NULL),
  (10000018, 'V', 'Veterinary branch', 'VETM', NULL);

INSERT INTO ID_ISO18626_CONNECT (ISO18626_CONNECTION_ID, ILL_SYSTEM, ISO18626_CONNECT_TYPE, ISO18626_HOST_ADDRESS, ISO18626_HOST_URL, ISO18626_HOST_PORT, ISO18626_VERSION, ISO18626_AUTHN_TYPE, RT_RETRY, RST_TRANSFER_REQUEST, TRANSFER_PATRON_INFO, TRANSFER_PATRON_EMAIL, TRANSFER_PATRON_ADDRESS, ACTION_CANCEL, ACTION_RENEW, ACTION_NOTIFICATION, RFM_REQUEST_RESPONSE, RFM_NOTIFICATION) VALUES
  ('AUENFELS', 'OSTANA', 'HTTPS', 'iso18626.ub-auenfels.example.org', 'https://iso18626.ub-auenfels.example.org/ill', 443, '1.1', 'CERT', 'Y', 'Y', 'Y', 'Y', 'N', 'Y', 'Y', 'Y', 'Y', 'Y'),
  ('KELMORE-TALVERNE', 'TALVERNE', 'HTTPS', 'talverne.lib-kelmore.example.org', 'https://talverne.lib-kelmore.example.org/tv/iso18626', 443, '1.2', 'APIKEY', 'Y', 'N', 'N', 'N', 'N', 'Y', 'Y', 'Y', 'Y', 'Y'),
  ('NORTHFORK-TEST', 'OTHER', 'HTTP', '192.0.2.80', NULL, 8080, '1.0', 'NONE', 'N', 'N', 'N', 'N', 'N', 'N', 'N', 'Y', 'Y', 'N');

UPDATE ID_LIBRARY SET ISO18626_CONNECTION_ID = 'AUENFELS' WHERE LIBRARY_ID = 10000000;
UPDATE ID_LIBRARY SET ISO18626_CONNECTION_ID = 'KELMORE-TALVERNE' WHERE LIBRARY_ID = 10000011;

INSERT INTO ID_ISO18626_AGENCY_ID_RECEIVE (ISO18626_AGENCY_ID, LIBRARY_ID) VALUES
  ('ISIL:DE-AUE', 10000000), ('AUENFELS', 10000000), ('ISIL:CA-KLM', 10000011);
INSERT INTO ID_ISO18626_AGENCY_ID_SEND (LIBRARY_ID, EXTERNAL_ILL_SYSTEM, ISO18626_AGENCY_ID) VALUES
  (10000000, 'OSTANA', 'ISIL:DE-AUE'), (10000000, 'TALVERNE', 'DE-AUE-TV'), (10000011, 'TALVERNE', 'ISIL:CA-KLM');

-- Category I suppliers are offered as targets of a rerouted request.
INSERT INTO ID_SUPPLIER (LIBRARY_ID, SUPPLIER_CODE, LIBRARY_SEQ, LIBRARY, SUPPLIER_CAT, REQ_METHOD, ISO18626_CONNECTION_ID) VALUES
  (10000000, 'AUE-MAIN', 1, 'Universitätsbibliothek Auenfels', 'I', '8', 'AUENFELS'),
  (10000000, 'AUE-LAW', 2, 'Juristische Zweigbibliothek', 'I', 'E', NULL),
  (10000000, 'AUE-STORE', 4, 'Außenmagazin', 'I', 'E', NULL),
  (10000000, 'AUE-MED', 3, 'Medizinische Zweigbibliothek', NULL, 'E', NULL),
  (10000002, 'RDS', 1, 'Landesbibliothek Riedstein', 'E', 'E', NULL),
  (10000006, 'BRV', 1, 'BU Brévannes', 'E', 'E', NULL),
  (10000006, 'BRV-SC', 2, 'BU Brévannes, sciences', 'E', 'E', NULL),
  (10000010, 'OMR', 1, 'Bibliothèque centrale', 'E', 'I', NULL),
  (10000011, 'KLM', 1, 'Kelmore Main Library', 'E', '8', 'KELMORE-TALVERNE'),
  (10000011, 'KLM-ENG', 2, 'Kelmore Engineering', 'E', 'A', NULL),
  (10000014, 'ELD', 1, 'Barrowdale Hall Library', 'E', 'I', NULL),
  (10000018, 'NFK', 1, 'Halden Library', 'E', '8', 'NORTHFORK-TEST'),
  (10000018, 'NFK-VET', 2, 'Veterinary Branch', 'E', 'E', NULL),
  (10000018, 'NFK-STORE', 3, 'Off-site storage', 'E', 'E', NULL);

INSERT INTO ID_PATRON (LIBRARY_ID, PATRON_ID, PATRON_NAME, PATRON_SURNAME, PATRON_TYPE, DEPARTMENT, PICKUP_LOCATION, PATRON_EMAIL) VALUES
  (10000000, 'A1001', 'Lena', 'Brandt', 'GR', 'BIO', 'M', 'lena.brandt@ub-auenfels.example.org'),
  (10000000, 'A1002', 'Tomás', 'Keller', 'FA', 'LAW', 'L', 'tomas.keller@ub-auenfels.example.org'),
  (10000000, 'A1003', 'Mia', 'Vogelsang', 'UG', 'GER', 'M', 'mia.vogelsang@ub-auenfels.example.org'),
  (10000006, 'B2001', 'Camille', 'Dubreuil', 'GR', 'HIS', 'C', 'camille.dubreuil@bu-brevannes.example.org'),
  (10000011, 'K3001', 'Aisha', 'Rahman', 'FA', 'ENG', 'A', 'aisha.rahman@lib-kelmore.example.org'),
  (10000011, 'K3002', 'Connor', 'O''Shea', 'UG', 'EDU', 'M', 'connor.oshea@lib-kelmore.example.org'),
  (10000018, 'N4001', 'Grace', 'Lindqvist', 'ST', 'VET', 'V', 'grace.lindqvist@halden-northfork.example.org');

INSERT INTO ID_NCIP_CONNECT (LIBRARY_ID, NCIP_ILS_SYSTEM, NCIP_CONNECT_TYPE, NCIP_HOST_ADDRESS, NCIP_HOST_URL, NCIP_HOST_PORT, NCIP_VERSION, NCIP_APP_PROFILE, NCIP_SERVER_AGENCY_ID, NCIP_AGENCY_ID_SCHEME, NCIP_TO_AGENCY_ID, NCIP_FROM_AGENCY_ID, NCIP_ACTIVE_MESSAGES, NCIP_FROM_AGENCY_AUTH) VALUES
  (10000000, 'FOLDARE', 'HTTPS', 'ncip.ub-auenfels.example.org', 'https://ncip.ub-auenfels.example.org/ncip', 443, '2.2', 'ILL', 'AUE', 'https://agencies.example.org/scheme', 'AUE', 'OSTANA', 'YYYYYYNYNNNNYNN', NULL),
  (10000011, 'KELDRY', 'SOCKET', '192.0.2.90', NULL, 5001, '1.0', NULL, 'KLM', NULL, 'KLM', 'OSTANA', 'YYYYNNNNNNNNNNN', 'kelmore-auth');
UPDATE ID_LIBRARY SET NCIP_SERVER_LIBRARY_ID = 10000000, NCIP_USE_SERVER_PROFILE = 'Y' WHERE LIBRARY_ID IN (10000000, 10000001);
UPDATE ID_LIBRARY SET NCIP_SERVER_LIBRARY_ID = 10000011, NCIP_USE_SERVER_PROFILE = 'N' WHERE LIBRARY_ID = 10000011;

INSERT INTO ID_API_CONNECT (LIBRARY_ID, API_ILS_SYSTEM, API_CONNECT_TYPE, API_HOST_ADDRESS, API_HOST_URL, API_HOST_PORT, API_ALL_LOCATIONS, API_HD_LOCATIONS) VALUES
  (10000006, 'KELDRY', 'HTTPS', 'api.bu-brevannes.example.org', 'https://api.bu-brevannes.example.org/v1', 443, 'N', 'CENTRE, SCIENCES'),
  (10000018, 'AVELLIN', 'HTTPS', 'api.halden-northfork.example.org', NULL, 443, 'Y', NULL);

INSERT INTO ID_NCIP_PROFILE (LIBRARY_ID, NCIP_PROFILE, NCIP_PROFILE_DESC, NCIP_PATRON_TYPE, NCIP_ALLOW_LOAN, NCIP_ALLOW_COPY, NCIP_SELECT_DELIVERY_C, NCIP_DELIVERY_METHOD_C, NCIP_DELIVERY_ADDRESS_C, NCIP_SELECT_DELIVERY_L, NCIP_DELIVERY_METHOD_L, NCIP_DELIVERY_ADDRESS_L, FILE_FORMAT, MSG_FORMAT, BILLING_TYPE, BILLING_RATE, LOAN_CODE) VALUES
  (10000000, 'FACULTY', 'Professors and staff', 'FA', 'Y', 'Y', 'Y', NULL, NULL, 'N', 'P', 'M', 'P', 'T', 'F', 'N', 'N'),
  (10000000, 'GUEST', 'Guests: copies only', 'EX', 'N', 'Y', 'N', 'M', NULL, 'Y', NULL, NULL, 'P', 'T', 'I', 'A', NULL),
  (10000000, 'STUDENT', 'Students', 'UG', 'Y', 'Y', 'N', 'E', 'ill@ub-auenfels.example.org', 'N', 'P', 'M', 'P', 'H', 'F', 'N', 'S'),
  (10000011, 'DEFAULT', 'All members', 'GR', 'Y', 'Y', 'Y', NULL, NULL, 'Y', NULL, NULL, 'P', 'T', NULL, NULL, 'N');

INSERT INTO ID_NCIP_STATUS (LIBRARY_ID, NCIP_STATUS, NCIP_ALLOW_ILL) VALUES
  (10000000, 'AVAILABLE', 'N'), (10000000, 'LOST', 'Y'), (10000000, 'MISSING', 'Y'), (10000000, 'ON LOAN', 'Y'),
  (10000000, 'ON ORDER', 'N'), (10000011, 'CHECKED OUT', 'Y'), (10000011, 'REFERENCE', 'N');

INSERT INTO ID_NCIP_LIBRARY (LIBRARY_ID, NCIP_LIBRARY, UNIT_LIBRARY_ID) VALUES
  (10000000, 'HB', 10000001), (10000000, 'UB', 10000000), (10000011, 'MAIN', 10000011);

-- --- Requests ---

INSERT INTO ID_REQUEST (REQUEST_NUMBER, SORT_KEY, LIBRARY_ID, REQUEST_TYPE, DATE_ENTERED, DATE_SUBMITTED, REQUEST_SRC, SERVICE_TYPE, SERVICE_LEVEL, AUTHOR, TITLE, PUBLISHER, PUBLICATION_YEAR, PUBLICATION_DATE, PUBLICATION_TYPE, PUBLICATION_PLACE, ISBN, ARTICLE_AUTHOR, ARTICLE_TITLE, VOLUME, ISSUE, ISSN, PAGES_REQUESTED) VALUES
  ('REG00000001', 1, 10000001, 'REG', '2026-10-05 09:12:00', '2026-10-05 09:10:00', 'W', 'L', 'X', 'Hollenstein, Marga', 'Die Mühlen am oberen Lauf', 'Auenfelser Verlag', '1998', '1998', 'B', 'Auenfels', NULL, NULL, NULL, NULL, NULL, NULL, NULL),
  ('REG00000002', 2, 10000003, 'ILL', '2026-10-06 11:40:00', '2026-10-06 11:38:00', 'F', 'R', 'U', NULL, 'Journal of Coastal Medicine', NULL, '2019', '2019 May', 'J', NULL, NULL, 'Sandoval, P.; Hart, E.', 'Salt and recovery: a cohort study', '14', '2', NULL, '101-119'),
  ('REG00000003', 3, 10000011, 'ILL', '2026-10-09 15:02:00', '2026-10-09 15:00:00', 'I', 'R', 'X', NULL, 'Annals of Timber Engineering', NULL, '2004', '2004', 'J', NULL, NULL, 'Grady, L.', 'Creep of glued joints', '31', '4', NULL, '220-231'),
  ('REG00000004', 4, 10000018, 'RUS', '2026-10-12 08:31:00', '2026-10-12 08:30:00', 'I', 'L', 'E', 'Venn, Arthur', 'A short history of the plough', 'Eldersham Press', '1961', '1961', 'B', 'Eldersham', NULL, NULL, NULL, NULL, NULL, NULL, NULL),
  ('REG00000005', 5, 10000006, 'PAT', '2026-10-14 10:20:00', '2026-10-14 10:19:00', 'W', 'L', 'X', 'Delaunay-Ferrand, Iris', 'Les archives du vent', 'Éditions du Quai', '2011', '2011', 'B', 'Brévannes', NULL, NULL, NULL, NULL, NULL, NULL, NULL);
INSERT INTO ID_DELIVERY (REQUEST_NUMBER, PROCESS_TYPE, MSG_METHOD, DELIV_METHOD) VALUES
  ('REG00000001', '1', 'E', 'E'), ('REG00000002', '1', 'F', 'F'), ('REG00000003', '1', 'E', 'O'), ('REG00000004', '1', 'E', 'O'),
  ('REG00000005', '1', 'E', 'E');
INSERT INTO ID_QUEUE (REQUEST_NUMBER, EVENT_ID, QUEUE_TYPE, SUPPLIER_SEQ_SENT, DATE_UPDATE) VALUES
  ('REG00000001', 2020, '0', 1, '2026-10-05 10:00:00'), ('REG00000002', 3010, '0', 1, '2026-10-06 12:15:00'),
  ('REG00000003', 4010, '0', 2, '2026-10-10 09:00:00'), ('REG00000004', 3020, '0', 1, '2026-10-12 09:45:00'),
  ('REG00000005', 6010, '0', 1, '2026-10-14 16:05:00');
INSERT INTO ID_KEYWORD_TITLE (KEYWORD, REQUEST_NUMBER) VALUES
  ('MÜHLEN', 'REG00000001'), ('OBEREN', 'REG00000001'), ('LAUF', 'REG00000001'), ('JOURNAL', 'REG00000002'),
  ('COASTAL', 'REG00000002'), ('MEDICINE', 'REG00000002'), ('TIMBER', 'REG00000003'), ('ENGINEERING', 'REG00000003'),
  ('HISTORY', 'REG00000004'), ('PLOUGH', 'REG00000004'), ('ARCHIVES', 'REG00000005'), ('VENT', 'REG00000005');
INSERT INTO ID_KEYWORD_AUTHOR (KEYWORD, REQUEST_NUMBER) VALUES
  ('HOLLENSTEIN', 'REG00000001'), ('MARGA', 'REG00000001'), ('SANDOVAL', 'REG00000002'), ('GRADY', 'REG00000003'),
  ('VENN', 'REG00000004'), ('ARTHUR', 'REG00000004'), ('DELAUNAY', 'REG00000005'), ('FERRAND', 'REG00000005');
UPDATE ID_NEXT_REQUEST SET NEXT_REQUEST = 6;

-- --- Rules ---

UPDATE ID_REQUEST_TYPE SET LIBRARY_ID = 10000000 WHERE REQUEST_TYPE IN ('PAT', 'REG');
UPDATE ID_CATALOG_CODE SET CATALOG_LIBRARY_ID = 10000000 WHERE CATALOG_CODE = 'LOC';

INSERT INTO ID_ACK_STATEMENT (ACK_CODE, LIBRARY_ID, ACK_STATEMENT) VALUES
  ('REC', 10000000, 'We have received your request and are working on it.'),
  ('REC', 10000011, 'Your request has arrived at Kelmore University.'),
  ('SHP', 10000000, 'The item you asked for left our house today.');

INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES
  ('Covers, loan desk', 'Laser-1-Loans'),
  ('Labels, mail room', 'Label-4-Mail'),
  ('Reports, office', 'Laser-2-Office');

INSERT INTO ID_REJ_CALL_NUMBER (CALL_NUMBER, EXCEPTION_CODE) VALUES
  ('ATLAS', 'REF'), ('RARA', 'REF'), ('ZEITUNG 1900', 'BND');
INSERT INTO ID_REJ_LIB_SYMBOL (LIBRARY_SYMBOL, EXCEPTION_CODE) VALUES ('FR-ANC', 'NOH');

INSERT INTO ID_EXCEPTION_PROCESS (EXCEPTION_CODE, PROCESS_TYPE, MESSAGE, REROUTE, DELIVERY, EXCEPTION_NOTE) VALUES
  ('BIB', 'SEA', 'The item could not be found as cited. Please check your source.', 'Hold', 'M', 'Citation not verified.'),
  ('BND', 'SEA', 'The volume is at the bindery.', 'Next', 'M', NULL),
  ('CST', 'SUP', 'The cost is above the limit that you gave.', 'Hold', 'M', NULL),
  ('LOS', 'SEA', 'The item is lost.', 'Reroute', 'M', 'Item declared lost.'),
  ('NOH', 'SEA', 'We do not hold this title.', 'Next', 'M', NULL),
  ('NTE', 'REQ', NULL, NULL, 'P', NULL),
  ('ONL', 'LON', 'The item is on loan. It will be sent as soon as it is back.', NULL, 'M', NULL),
  ('PDF', 'DEL', 'Your copy is attached.', NULL, 'D', NULL),
  ('REF', 'LON', 'The item may be used in our reading room only.', 'AUE-STORE', 'M', NULL);
INSERT INTO ID_EXCEPTION_NOTE (EXCEPTION_CODE, PROCESS_TYPE, EXCEPTION_NOTE_SEQ, EXCEPTION_NOTE) VALUES
  ('BIB', 'SEA', 1, 'Citation not verified.'),
  ('BIB', 'SEA', 2, 'Volume and year do not agree.'),
  ('BIB', 'SEA', 3, 'Title changed; please look under the new title.'),
  ('LOS', 'SEA', 1, 'Item declared lost.');

INSERT INTO ID_ACCESS_EXCEPTION (ACCESS_GROUP, EXCEPTION_CODE) VALUES
  ('ADM', 'BIB'), ('ADM', 'CST'), ('ADM', 'DUP'), ('ADM', 'LOS'), ('ADM', 'NOH'), ('DOC', 'BIB'), ('DOC', 'NOH'),
  ('LON', 'ONL'), ('LON', 'REF');
INSERT INTO ID_ACCESS_ITEM_TYPE (ACCESS_GROUP, ITEM_TYPE) VALUES
  ('ADM', 'ART'), ('ADM', 'BOK'), ('ADM', 'THS'), ('DOC', 'ART'), ('DOC', 'CHP'), ('LON', 'BOK');

INSERT INTO ID_RATE_DELIVERY (BILLING_RATE, DELIV_METHOD, UNIT_SIZE, FLAT_FEE_UNIT, FREE_EXPOSURE, PER_EXPOSURE) VALUES
  ('A', 'E', 20, 5.00, 20, 0.20), ('A', 'M', 20, 8.00, 10, 0.25), ('C', 'E', 20, 12.00, 0, 0.50), ('C', 'M', 20, 18.00, 0, 0.50),
  ('R', 'E', 20, 0.00, 40, 0.10);
INSERT INTO ID_RATE_SUPPLY (BILLING_RATE, EXCEPTION_CODE, UNIT_SIZE, FLAT_FEE_UNIT, FREE_EXPOSURE, PER_EXPOSURE) VALUES
  ('A', 'CPY', 20, 6.00, 20, 0.20), ('A', 'LND', 1, 12.00, NULL, NULL), ('C', 'PDF', 20, 15.00, 0, 0.40);
INSERT INTO ID_RATE_OUTPUT (BILLING_RATE, OUTPUT_FORMAT, UNIT_SIZE, FLAT_FEE_UNIT, FREE_EXPOSURE, PER_EXPOSURE) VALUES
  ('A', 'CO', 1, 0.80, 0, 0.80), ('A', 'PH', 10, 2.00, 10, 0.20), ('C', 'PD', 20, 4.00, 0, 0.30);
INSERT INTO ID_RATE_REJECT (BILLING_RATE, EXCEPTION_CODE, SURCHARGE) VALUES
  ('A', 'BIB', 1.50), ('C', 'BIB', 4.00), ('C', 'CST', 2.00);
INSERT INTO ID_RATE_SERVICE (BILLING_RATE, SERVICE_LEVEL, SURCHARGE) VALUES
  ('A', 'E', 15.00), ('A', 'U', 7.50), ('C', 'E', 25.00), ('C', 'U', 12.00);
INSERT INTO ID_RATE_ALIAS (LIBRARY_ID, SUPPLIER_LIBRARY_ID, SUPPLIER_CODE, BILLING_RATE) VALUES
  (10000001, 10000000, NULL, 'R'), (10000001, 10000000, 'AUE-LAW', 'A'), (10000006, 10000000, NULL, 'R'), (10000018, 10000011, 'KLM', 'N');

INSERT INTO ID_SERVICE_CODE (SERVICE_CODE, ITEM_TYPE, DELIVERY_METHOD, SERVICE_LEVEL, SYSTEM_SOURCE, COUNTRY_REGION) VALUES
  ('EXP', NULL, NULL, 'E', NULL, NULL), ('EXP', 'ART', 'E', 'E', NULL, 'UK'), ('INT', NULL, 'M', NULL, NULL, 'RW'),
  ('LON', 'BOK', 'M', 'X', NULL, 'EU'), ('STD', NULL, NULL, NULL, NULL, NULL), ('STD', 'ART', 'E', 'X', 'UNION', 'EU');

-- --- Texts ---

UPDATE ID_COVER_INFO SET MESSAGE_1 = 'Please return the item by the date stamped on its band.', MESSAGE_2 = 'Questions? Write to fernleihe@ub-auenfels.example.org and quote the request number.', MSG_TXT_SUBJECT = 'Your interlibrary loan request', MSG_TXT_INSTRUCTIONS = 'Please show this message at the desk.', MSG_TXT_BASE_URL = 'https://requests.ub-auenfels.example.org/show?number=', MSG_TXT_HEADER = 'Dear reader,', MSG_TXT_REPORT = 'NotifyText.rpt', MSG_TXT_FOOTER = 'With kind regards, your interlibrary loan team', MSG_PDF_SUBJECT = 'Your document', MSG_PDF_REPORT = 'NotifyPdf.rpt', MSG_PDF_MESSAGE = 'The notice is attached as a PDF file.', LOANS_TXT_SUBJECT = 'Your loan', LOANS_TXT_HEADER = 'Dear reader,', LOANS_TXT_REPORT = 'LoanNotice.rpt', LOANS_TXT_FOOTER = 'Thank you for returning items in time.', GENERAL_SUBJECT = 'A message from your library', GENERAL_HEADER = 'Dear colleague,', GENERAL_REPORT = 'GeneralMessage.rpt', GENERAL_FOOTER = 'Ostana interlibrary loan', PICKUP_SUBJECT = 'Ready for pickup', PICKUP_REPORT = 'PickupNotice.rpt' WHERE REQUEST_TYPE IN ('PAT', 'REG');

INSERT INTO ID_GENERAL_MESSAGE (LIBRARY_ID, GENERAL_MESSAGE, GENERAL_MESSAGE_DESC, GENERAL_MESSAGE_SUB, GENERAL_MESSAGE_MSG) VALUES
  (10000000, 'A', 'Ask for the source', 'Your request needs more data', 'Please tell us where you found this reference, so that we can go on searching.'),
  (10000000, 'C', 'Closing days', 'Closing days of the library', 'The library is closed from 24 December to 1 January. Loans that fall due in these days are renewed.'),
  (10000006, 'A', 'Vérifier la référence', 'Votre demande', 'Merci de vérifier la référence : le volume et l''année ne concordent pas.'),
  (10000011, 'D', 'Delay', '', 'Your request will be delayed because the supplier is closed.');

INSERT INTO ID_PATRON_MESSAGE (LIBRARY_ID, PATRON_MESSAGE, PATRON_MESSAGE_DESC, PATRON_MESSAGE_EVENT_ID, PATRON_MESSAGE_SUB, PATRON_MESSAGE_MSG, PATRON_MESSAGE_RESPONSE, PATRON_MESSAGE_DOCUMENT, PATRON_RESPONSE_EVENT_ID, PATRON_RESPONSE_EXCEPTION) VALUES
  (10000000, 'C', 'Cost approval', 6010, 'Please approve the cost', 'The supplier charges more than your limit. Do you still want the item?', 'Y', 'N', 1030, 'CST'),
  (10000000, 'R', 'Ready', NULL, 'Your item is here', 'The item that you asked for is waiting for you at the pickup desk.', 'N', 'N', NULL, NULL),
  (10000000, 'S', 'Signature', 6020, 'We need your signature', 'Please sign the copyright declaration and send it back to us.', 'N', 'Y', 1010, 'INC'),
  (10000011, 'R', 'Ready', NULL, 'Your item has arrived', 'Please pick up your item within five days.', 'N', 'N', NULL, NULL);

-- Library 0 is the default of the system.
INSERT INTO ID_EMAIL_MESSAGE (LIBRARY_ID, PATRON_ID, SED_SKIP_HEADER_FOOTER, SED_MESSAGE_SUBJECT, SED_MESSAGE_REQUEST, SED_MESSAGE_BODY, EMAIL_SKIP_HEADER_FOOTER, EMAIL_MESSAGE_SUBJECT, EMAIL_MESSAGE_REQUEST, EMAIL_MESSAGE_BODY) VALUES
  (0, NULL, 'N', 'Your document is ready', 'Request %NUMBER%', 'Your document can be fetched at the address below for thirty days.', 'N', 'Your document', 'Request %NUMBER%: %TITLE%', 'The document that you asked for is attached.'),
  (10000000, NULL, 'N', 'Ihr Dokument liegt bereit', 'Bestellung %NUMBER%', 'Ihr Dokument kann 30 Tage lang unter der folgenden Adresse abgerufen werden.', 'Y', 'Ihre Bestellung', NULL, 'Anbei erhalten Sie das bestellte Dokument.'),
  (10000000, 'A1001', NULL, NULL, NULL, NULL, 'N', 'Your article, Lena', NULL, 'Please find the article attached.');
INSERT INTO ID_ANNOTATION (LIBRARY_ID, PATRON_ID, USE_ANNOTATION, ANNOTATION, TEXT_FONT_SIZE, TEXT_ORIENTATION) VALUES
  (0, NULL, 'Y', 'Supplied through Ostana. For private study only.', 8, 'BottomLeft'),
  (10000000, NULL, 'Y', 'Universitätsbibliothek Auenfels - nur zum eigenen Gebrauch', 10, 'BottomCenter');

-- --- Descriptions in French and German; what is not said here stays English ---

UPDATE ID_LANGUAGE_CODE SET
  LANGUAGE_CODE_DESC_FRE = CASE LANGUAGE_CODE WHEN 'ENG' THEN 'Anglais' WHEN 'FRE' THEN 'Français' ELSE 'Allemand' END,
  LANGUAGE_CODE_DESC_GER = CASE LANGUAGE_CODE WHEN 'ENG' THEN 'Englisch' WHEN 'FRE' THEN 'Französisch' ELSE 'Deutsch' END;

UPDATE ID_TABLES SET
  TABLES_DESC_FRE = CASE TABLES WHEN 'ID_ACCESS_GROUP' THEN 'Groupes d''accès'
    WHEN 'ID_ACK_STATEMENT' THEN 'Accusés de réception' WHEN 'ID_BIBLIOGRAPHY' THEN 'Bibliographies'
    WHEN 'ID_BILLING_TYPE' THEN 'Types de facturation' WHEN 'ID_CATALOG_CODE' THEN 'Catalogues'
    WHEN 'ID_CREDIT_CARD' THEN 'Cartes de crédit' WHEN 'ID_CUSTOMER_ID' THEN 'Identifiants de clients'
    WHEN 'ID_EVENT' THEN 'Événements' WHEN 'ID_EXCEPTION_CODE' THEN 'Descriptions des exceptions'
    WHEN 'ID_EXCEPTION_TYPE' THEN 'Types d''exceptions' WHEN 'ID_FILE_FORMAT' THEN 'Formats de fichiers'
    WHEN 'ID_ILL_SYSTEM' THEN 'Systèmes de PEB' WHEN 'ID_ISO_UNFILLED' THEN 'Motifs ISO de non-fourniture'
    WHEN 'ID_ISO18626_AUTHN_TYPE' THEN 'Authentification ISO 18626'
    WHEN 'ID_ISO18626_CONNECT_TYPE' THEN 'Types de connexion ISO 18626'
    WHEN 'ID_ISO18626_VERSION' THEN 'Versions ISO 18626' WHEN 'ID_LANGUAGE_CODE' THEN 'Langues'
    WHEN 'ID_LIBRARY_CAT' THEN 'Catégories de bibliothèques' WHEN 'ID_LIBRARY_TYPE' THEN 'Types de bibliothèques'
    WHEN 'ID_MSG_FORMAT' THEN 'Formats de messages' WHEN 'ID_NCIP_CONNECT_TYPE' THEN 'Types de connexion NCIP'
    WHEN 'ID_NCIP_ILS_SYSTEM' THEN 'Systèmes NCIP' WHEN 'ID_OUTPUT_FORMAT' THEN 'Formats de sortie'
    WHEN 'ID_PATRON_TYPE' THEN 'Types de lecteurs' WHEN 'ID_PROCESS_TYPE' THEN 'Types de processus'
    WHEN 'ID_PUBLICATION_TYPE' THEN 'Types de publications' WHEN 'ID_REQUEST_SRC' THEN 'Origines des demandes'
    WHEN 'ID_SERVICE_LEVEL' THEN 'Niveaux de service' WHEN 'ID_SERVICE_TYPE' THEN 'Types de service'
    WHEN 'ID_STATS_CAT_LIB' THEN 'Catégories statistiques' WHEN 'ID_SYSTEM_SOURCE' THEN 'Sources'
    WHEN 'ID_VORN_SERVICE' THEN 'Services VORN' END,
  TABLES_DESC_GER = CASE TABLES WHEN 'ID_ACCESS_GROUP' THEN 'Zugriffsgruppen'
    WHEN 'ID_ACK_STATEMENT' THEN 'Eingangsbestätigungen' WHEN 'ID_BIBLIOGRAPHY' THEN 'Bibliografien'
    WHEN 'ID_BILLING_TYPE' THEN 'Abrechnungsarten' WHEN 'ID_CATALOG_CODE' THEN 'Kataloge'
    WHEN 'ID_CREDIT_CARD' THEN 'Kreditkarten' WHEN 'ID_CUSTOMER_ID' THEN 'Kundennummern'
    WHEN 'ID_EVENT' THEN 'Ereignisse des Ablaufs' WHEN 'ID_EXCEPTION_CODE' THEN 'Beschreibungen der Ausnahmen'
    WHEN 'ID_EXCEPTION_TYPE' THEN 'Ausnahmearten' WHEN 'ID_FILE_FORMAT' THEN 'Dateiformate'
    WHEN 'ID_ILL_SYSTEM' THEN 'Fernleihsysteme' WHEN 'ID_ISO_UNFILLED' THEN 'ISO-Gründe für Nichtlieferung'
    WHEN 'ID_ISO18626_AUTHN_TYPE' THEN 'ISO-18626-Anmeldung'
    WHEN 'ID_ISO18626_CONNECT_TYPE' THEN 'ISO-18626-Verbindungsarten'
    WHEN 'ID_ISO18626_VERSION' THEN 'ISO-18626-Versionen' WHEN 'ID_LANGUAGE_CODE' THEN 'Sprachen'
    WHEN 'ID_LIBRARY_CAT' THEN 'Bibliothekskategorien' WHEN 'ID_LIBRARY_TYPE' THEN 'Bibliothekstypen'
    WHEN 'ID_MSG_FORMAT' THEN 'Nachrichtenformate' WHEN 'ID_NCIP_CONNECT_TYPE' THEN 'NCIP-Verbindungsarten'
    WHEN 'ID_NCIP_ILS_SYSTEM' THEN 'NCIP-Bibliothekssysteme' WHEN 'ID_OUTPUT_FORMAT' THEN 'Ausgabeformate'
    WHEN 'ID_PATRON_TYPE' THEN 'Benutzertypen' WHEN 'ID_PROCESS_TYPE' THEN 'Vorgangsarten'
    WHEN 'ID_PUBLICATION_TYPE' THEN 'Publikationstypen' WHEN 'ID_REQUEST_SRC' THEN 'Herkunft der Bestellungen'
    WHEN 'ID_SERVICE_LEVEL' THEN 'Dienstgüten' WHEN 'ID_SERVICE_TYPE' THEN 'Dienstarten'
    WHEN 'ID_STATS_CAT_LIB' THEN 'Statistikkategorien' WHEN 'ID_SYSTEM_SOURCE' THEN 'Quellsysteme'
    WHEN 'ID_VORN_SERVICE' THEN 'VORN-Dienste' END;

UPDATE ID_DELIV_METHOD SET
  DELIV_METHOD_DESC_FRE = CASE DELIV_METHOD WHEN 'A' THEN 'Ariel' WHEN 'C' THEN 'Coursier' WHEN 'E' THEN 'Courriel'
    WHEN 'F' THEN 'Télécopie' WHEN 'M' THEN 'Poste' WHEN 'O' THEN 'Odyssey' WHEN 'P' THEN 'Retrait'
    WHEN 'S' THEN 'Envoi sécurisé' WHEN 'V' THEN 'Docview' WHEN 'W' THEN 'Lien web' END,
  DELIV_METHOD_DESC_GER = CASE DELIV_METHOD WHEN 'A' THEN 'Ariel' WHEN 'C' THEN 'Lieferdienst' WHEN 'E' THEN 'E-Mail'
    WHEN 'F' THEN 'Fax' WHEN 'M' THEN 'Post' WHEN 'O' THEN 'Odyssey' WHEN 'P' THEN 'Abholung'
    WHEN 'S' THEN 'Sicher elektronisch' WHEN 'V' THEN 'Docview' WHEN 'W' THEN 'Weblink' END;

UPDATE ID_MSG_METHOD SET
  MSG_METHOD_DESC_FRE = CASE MSG_METHOD WHEN 'A' THEN 'Ariel' WHEN 'C' THEN 'Coursier' WHEN 'E' THEN 'Courriel'
    WHEN 'F' THEN 'Télécopie' WHEN 'M' THEN 'Poste' WHEN 'V' THEN 'Docview' WHEN 'W' THEN 'Web' END,
  MSG_METHOD_DESC_GER = CASE MSG_METHOD WHEN 'A' THEN 'Ariel' WHEN 'C' THEN 'Lieferdienst' WHEN 'E' THEN 'E-Mail'
    WHEN 'F' THEN 'Fax' WHEN 'M' THEN 'Post' WHEN 'V' THEN 'Docview' WHEN 'W' THEN 'Web' END;

UPDATE ID_REQ_METHOD SET
  REQ_METHOD_DESC_FRE = CASE REQ_METHOD WHEN '8' THEN 'ISO 18626' WHEN 'A' THEN 'API' WHEN 'E' THEN 'Courriel'
    WHEN 'I' THEN 'ISO ILL' WHEN 'M' THEN 'Poste' WHEN 'W' THEN 'Formulaire web du fournisseur' END,
  REQ_METHOD_DESC_GER = CASE REQ_METHOD WHEN '8' THEN 'ISO 18626' WHEN 'A' THEN 'API' WHEN 'E' THEN 'E-Mail'
    WHEN 'I' THEN 'ISO ILL' WHEN 'M' THEN 'Post' WHEN 'W' THEN 'Webformular des Lieferanten' END;

UPDATE ID_FILE_FORMAT SET
  FILE_FORMAT_DESC_FRE = CASE FILE_FORMAT WHEN 'J' THEN 'Images JPEG' WHEN 'P' THEN 'PDF'
    WHEN 'T' THEN 'TIFF, plusieurs pages' END,
  FILE_FORMAT_DESC_GER = CASE FILE_FORMAT WHEN 'J' THEN 'JPEG-Bilder' WHEN 'P' THEN 'PDF'
    WHEN 'T' THEN 'TIFF, mehrere Seiten' END;

UPDATE ID_MSG_FORMAT SET
  MSG_FORMAT_DESC_FRE = CASE MSG_FORMAT WHEN 'H' THEN 'HTML' WHEN 'P' THEN 'Pièce jointe PDF'
    WHEN 'T' THEN 'Texte brut' END,
  MSG_FORMAT_DESC_GER = CASE MSG_FORMAT WHEN 'H' THEN 'HTML' WHEN 'P' THEN 'PDF-Anhang' WHEN 'T' THEN 'Reiner Text' END;

UPDATE ID_OUTPUT_FORMAT SET
  OUTPUT_FORMAT_DESC_FRE = CASE OUTPUT_FORMAT WHEN 'CO' THEN 'Copie en couleurs' WHEN 'MF' THEN 'Microfilm'
    WHEN 'PD' THEN 'PDF' WHEN 'PH' THEN 'Photocopie' END,
  OUTPUT_FORMAT_DESC_GER = CASE OUTPUT_FORMAT WHEN 'CO' THEN 'Farbkopie' WHEN 'MF' THEN 'Mikrofilm'
    WHEN 'PD' THEN 'PDF' WHEN 'PH' THEN 'Fotokopie' END;

UPDATE ID_PUBLICATION_TYPE SET
  PUBLICATION_TYPE_DESC_FRE = CASE PUBLICATION_TYPE WHEN 'A' THEN 'Audiovisuel' WHEN 'B' THEN 'Livre'
    WHEN 'C' THEN 'Communication' WHEN 'J' THEN 'Article de revue' WHEN 'M' THEN 'Carte' WHEN 'N' THEN 'Journal'
    WHEN 'P' THEN 'Brevet' WHEN 'R' THEN 'Rapport' WHEN 'S' THEN 'Partition' WHEN 'T' THEN 'Thèse' END,
  PUBLICATION_TYPE_DESC_GER = CASE PUBLICATION_TYPE WHEN 'A' THEN 'Audiovisuell' WHEN 'B' THEN 'Buch'
    WHEN 'C' THEN 'Tagungsbeitrag' WHEN 'J' THEN 'Zeitschriftenaufsatz' WHEN 'M' THEN 'Karte' WHEN 'N' THEN 'Zeitung'
    WHEN 'P' THEN 'Patent' WHEN 'R' THEN 'Bericht' WHEN 'S' THEN 'Noten' WHEN 'T' THEN 'Hochschulschrift' END;

UPDATE ID_SERVICE_LEVEL SET
  SERVICE_LEVEL_DESC_FRE = CASE SERVICE_LEVEL WHEN 'C' THEN 'Contrat' WHEN 'E' THEN 'Express' WHEN 'U' THEN 'Urgent'
    WHEN 'X' THEN 'Normal' END,
  SERVICE_LEVEL_DESC_GER = CASE SERVICE_LEVEL WHEN 'C' THEN 'Vertrag' WHEN 'E' THEN 'Express' WHEN 'U' THEN 'Eilig'
    WHEN 'X' THEN 'Normal' END;

UPDATE ID_SERVICE_TYPE SET
  SERVICE_TYPE_DESC_FRE = CASE SERVICE_TYPE WHEN 'L' THEN 'Prêt' WHEN 'R' THEN 'Reproduction'
    WHEN 'V' THEN 'Consultation sur place' WHEN 'X' THEN 'Prêt ou reproduction' END,
  SERVICE_TYPE_DESC_GER = CASE SERVICE_TYPE WHEN 'L' THEN 'Leihe' WHEN 'R' THEN 'Kopie' WHEN 'V' THEN 'Lesesaalleihe'
    WHEN 'X' THEN 'Leihe oder Kopie' END;

UPDATE ID_LIBRARY_TYPE SET
  LIBRARY_TYPE_DESC_FRE = CASE LIBRARY_TYPE WHEN 'G' THEN 'Administration' WHEN 'H' THEN 'Hôpital'
    WHEN 'M' THEN 'Bibliothèque municipale' WHEN 'N' THEN 'Bibliothèque nationale'
    WHEN 'P' THEN 'Lecteurs (pas une bibliothèque)' WHEN 'S' THEN 'Bibliothèque spécialisée'
    WHEN 'U' THEN 'Bibliothèque universitaire' WHEN 'Z' THEN 'Système (pas une bibliothèque)' END,
  LIBRARY_TYPE_DESC_GER = CASE LIBRARY_TYPE WHEN 'G' THEN 'Behördenbibliothek' WHEN 'H' THEN 'Krankenhausbibliothek'
    WHEN 'M' THEN 'Stadtbibliothek' WHEN 'N' THEN 'Nationalbibliothek' WHEN 'P' THEN 'Benutzer (keine Bibliothek)'
    WHEN 'S' THEN 'Spezialbibliothek' WHEN 'U' THEN 'Universitätsbibliothek' WHEN 'Z' THEN 'System (keine Bibliothek)' END;

UPDATE ID_LIBRARY_CAT SET
  LIBRARY_CAT_DESC_FRE = CASE LIBRARY_CAT WHEN 'BR' THEN 'Annexe de l''établissement'
    WHEN 'CO' THEN 'Membre du réseau' WHEN 'FO' THEN 'Bibliothèque étrangère' WHEN 'NA' THEN 'Dépôt légal'
    WHEN 'OT' THEN 'Autre bibliothèque' END,
  LIBRARY_CAT_DESC_GER = CASE LIBRARY_CAT WHEN 'BR' THEN 'Zweigstelle der eigenen Einrichtung'
    WHEN 'CO' THEN 'Verbundmitglied' WHEN 'FO' THEN 'Ausländische Bibliothek'
    WHEN 'NA' THEN 'Pflichtexemplarbibliothek' WHEN 'OT' THEN 'Andere Bibliothek' END;

UPDATE ID_BILLING_TYPE SET
  BILLING_TYPE_DESC_FRE = CASE BILLING_TYPE WHEN 'C' THEN 'Carte de crédit' WHEN 'D' THEN 'Compte de dépôt'
    WHEN 'F' THEN 'Gratuit' WHEN 'I' THEN 'Facture' WHEN 'V' THEN 'Bons' END,
  BILLING_TYPE_DESC_GER = CASE BILLING_TYPE WHEN 'C' THEN 'Kreditkarte' WHEN 'D' THEN 'Depotkonto'
    WHEN 'F' THEN 'Kostenlos' WHEN 'I' THEN 'Rechnung' WHEN 'V' THEN 'Gutscheine' END;

UPDATE ID_BILLING_RATE SET
  BILLING_RATE_DESC_FRE = CASE BILLING_RATE WHEN 'A' THEN 'Bibliothèques universitaires' WHEN 'C' THEN 'Entreprises'
    WHEN 'N' THEN 'Sans frais' WHEN 'R' THEN 'Partenaires réciproques' END,
  BILLING_RATE_DESC_GER = CASE BILLING_RATE WHEN 'A' THEN 'Hochschulbibliotheken' WHEN 'C' THEN 'Firmen'
    WHEN 'N' THEN 'Ohne Kosten' WHEN 'R' THEN 'Partner auf Gegenseitigkeit' END;

UPDATE ID_CURRENCY_CODE SET
  CURRENCY_CODE_DESC_FRE = CASE CURRENCY_CODE WHEN 'AUD' THEN 'Dollar australien' WHEN 'CAD' THEN 'Dollar canadien'
    WHEN 'CNY' THEN 'Yuan' WHEN 'EUR' THEN 'Euro' WHEN 'GBP' THEN 'Livre sterling'
    WHEN 'HKD' THEN 'Dollar de Hong Kong' WHEN 'JPY' THEN 'Yen' WHEN 'MXN' THEN 'Peso mexicain'
    WHEN 'NZD' THEN 'Dollar néo-zélandais' WHEN 'SGD' THEN 'Dollar de Singapour'
    WHEN 'USD' THEN 'Dollar des États-Unis' END,
  CURRENCY_CODE_DESC_GER = CASE CURRENCY_CODE WHEN 'AUD' THEN 'Australischer Dollar'
    WHEN 'CAD' THEN 'Kanadischer Dollar' WHEN 'CNY' THEN 'Renminbi Yuan' WHEN 'EUR' THEN 'Euro'
    WHEN 'GBP' THEN 'Pfund Sterling' WHEN 'HKD' THEN 'Hongkong-Dollar' WHEN 'JPY' THEN 'Yen'
    WHEN 'MXN' THEN 'Mexikanischer Peso' WHEN 'NZD' THEN 'Neuseeland-Dollar' WHEN 'SGD' THEN 'Singapur-Dollar'
    WHEN 'USD' THEN 'US-Dollar' END;

UPDATE ID_LOAN_CODE SET
  LOAN_CODE_DESC_FRE = CASE LOAN_CODE WHEN 'N' THEN 'PRÊT NORMAL' WHEN 'R' THEN 'CONSULTATION SUR PLACE'
    WHEN 'S' THEN 'PRÊT COURT' END,
  LOAN_CODE_DESC_GER = CASE LOAN_CODE WHEN 'N' THEN 'NORMALE LEIHE' WHEN 'R' THEN 'LESESAALLEIHE'
    WHEN 'S' THEN 'KURZLEIHE' END;

UPDATE ID_LOAN_STATUS SET
  LOAN_STATUS_DESC_FRE = CASE LOAN_STATUS WHEN 'DAM' THEN 'Rendu endommagé' WHEN 'LOS' THEN 'Perdu'
    WHEN 'OVD' THEN 'En retard' WHEN 'REC' THEN 'Rappelé' WHEN 'REN' THEN 'Prolongé' WHEN 'RET' THEN 'Rendu'
    WHEN 'SHP' THEN 'Expédié au demandeur' END,
  LOAN_STATUS_DESC_GER = CASE LOAN_STATUS WHEN 'DAM' THEN 'Beschädigt zurück' WHEN 'LOS' THEN 'Verloren'
    WHEN 'OVD' THEN 'Überfällig' WHEN 'REC' THEN 'Zurückgefordert' WHEN 'REN' THEN 'Verlängert'
    WHEN 'RET' THEN 'Zurückgegeben' WHEN 'SHP' THEN 'An den Besteller versandt' END;

UPDATE ID_PATRON_TYPE SET
  PATRON_TYPE_DESC_FRE = CASE PATRON_TYPE WHEN 'EX' THEN 'Lecteur extérieur' WHEN 'FA' THEN 'Enseignant'
    WHEN 'GR' THEN 'Étudiant en master' WHEN 'ST' THEN 'Personnel' WHEN 'UG' THEN 'Étudiant' END,
  PATRON_TYPE_DESC_GER = CASE PATRON_TYPE WHEN 'EX' THEN 'Externer Leser' WHEN 'FA' THEN 'Lehrende'
    WHEN 'GR' THEN 'Graduierte' WHEN 'ST' THEN 'Mitarbeitende' WHEN 'UG' THEN 'Studierende' END;

UPDATE ID_ACCESS_GROUP SET
  ACCESS_GROUP_DESC_FRE = CASE ACCESS_GROUP WHEN 'ADM' THEN 'Administrateurs'
    WHEN 'DOC' THEN 'Fourniture de documents' WHEN 'LON' THEN 'Bureau de prêt' WHEN 'PUB' THEN 'Postes publics' END,
  ACCESS_GROUP_DESC_GER = CASE ACCESS_GROUP WHEN 'ADM' THEN 'Verwaltung' WHEN 'DOC' THEN 'Dokumentlieferung'
    WHEN 'LON' THEN 'Leihstelle' WHEN 'PUB' THEN 'Öffentliche Plätze' END;

UPDATE ID_EXCEPTION_TYPE SET
  EXCEPTION_TYPE_DESC_FRE = CASE EXCEPTION_TYPE WHEN 'B' THEN 'Rejet : données bibliographiques'
    WHEN 'C' THEN 'Fourni en copie' WHEN 'L' THEN 'Rejet : exclu du prêt' WHEN 'M' THEN 'Fourni sur un autre support'
    WHEN 'N' THEN 'Note sans décision' WHEN 'R' THEN 'Rejeté' WHEN 'S' THEN 'Fourni' WHEN 'T' THEN 'Transmis' END,
  EXCEPTION_TYPE_DESC_GER = CASE EXCEPTION_TYPE WHEN 'B' THEN 'Abgelehnt: bibliografische Angaben'
    WHEN 'C' THEN 'Als Kopie geliefert' WHEN 'L' THEN 'Abgelehnt: nicht verleihbar'
    WHEN 'M' THEN 'Auf anderem Medium geliefert' WHEN 'N' THEN 'Notiz ohne Entscheidung' WHEN 'R' THEN 'Abgelehnt'
    WHEN 'S' THEN 'Geliefert' WHEN 'T' THEN 'Weitergeleitet' END;

UPDATE ID_EXCEPTION_CODE SET
  EXCEPTION_CODE_DESC_FRE = CASE EXCEPTION_CODE WHEN 'BIB' THEN 'Référence introuvable' WHEN 'BND' THEN 'À la reliure'
    WHEN 'CPY' THEN 'Copie fournie' WHEN 'CST' THEN 'Coût au-dessus de la limite' WHEN 'DUP' THEN 'Demande en double'
    WHEN 'INC' THEN 'Référence incomplète' WHEN 'LND' THEN 'Prêt fourni' WHEN 'LOS' THEN 'Perdu'
    WHEN 'MCR' THEN 'Microfilm fourni' WHEN 'NOH' THEN 'Non possédé' WHEN 'NTE' THEN 'Note au demandeur'
    WHEN 'ONL' THEN 'En prêt' WHEN 'PDF' THEN 'Copie électronique fournie' WHEN 'REF' THEN 'Consultation sur place'
    WHEN 'TRF' THEN 'Transmis à une autre bibliothèque' END,
  EXCEPTION_CODE_DESC_GER = CASE EXCEPTION_CODE WHEN 'BIB' THEN 'Angaben nicht ermittelbar'
    WHEN 'BND' THEN 'Beim Buchbinder' WHEN 'CPY' THEN 'Kopie geliefert' WHEN 'CST' THEN 'Kosten über der Grenze'
    WHEN 'DUP' THEN 'Doppelte Bestellung' WHEN 'INC' THEN 'Unvollständige Angaben' WHEN 'LND' THEN 'Leihe geliefert'
    WHEN 'LOS' THEN 'Verloren' WHEN 'MCR' THEN 'Mikrofilm geliefert' WHEN 'NOH' THEN 'Nicht vorhanden'
    WHEN 'NTE' THEN 'Notiz an den Besteller' WHEN 'ONL' THEN 'Verliehen'
    WHEN 'PDF' THEN 'Elektronische Kopie geliefert' WHEN 'REF' THEN 'Präsenzbestand'
    WHEN 'TRF' THEN 'An andere Bibliothek weitergeleitet' END;

UPDATE ID_PROCESS_TYPE SET
  PROCESS_TYPE_DESC_FRE = CASE PROCESS_TYPE WHEN 'CAN' THEN 'Annulation' WHEN 'DEL' THEN 'Fourniture'
    WHEN 'LON' THEN 'Prêts' WHEN 'REQ' THEN 'Saisie' WHEN 'SEA' THEN 'Recherche'
    WHEN 'SUP' THEN 'Réponse du fournisseur' END,
  PROCESS_TYPE_DESC_GER = CASE PROCESS_TYPE WHEN 'CAN' THEN 'Stornierung' WHEN 'DEL' THEN 'Lieferung'
    WHEN 'LON' THEN 'Leihe' WHEN 'REQ' THEN 'Bestellaufnahme' WHEN 'SEA' THEN 'Recherche'
    WHEN 'SUP' THEN 'Antwort des Lieferanten' END;

UPDATE ID_STAT_LOCATION SET
  STAT_LOCATION_DESC_FRE = CASE STAT_LOCATION WHEN 'C' THEN 'Centrale' WHEN 'L' THEN 'Bibliothèque prêteuse'
    WHEN 'P' THEN 'Lecteur' WHEN 'R' THEN 'Bibliothèque demandeuse' WHEN 'S' THEN 'Magasins' END,
  STAT_LOCATION_DESC_GER = CASE STAT_LOCATION WHEN 'C' THEN 'Leitstelle' WHEN 'L' THEN 'Gebende Bibliothek'
    WHEN 'P' THEN 'Benutzer' WHEN 'R' THEN 'Nehmende Bibliothek' WHEN 'S' THEN 'Magazin' END;

UPDATE ID_STAT_FUNCTION SET
  STAT_FUNCTION_DESC_FRE = CASE STAT_FUNCTION WHEN 'A' THEN 'Demande acceptée' WHEN 'D' THEN 'Document livré'
    WHEN 'F' THEN 'Transmise au fournisseur suivant' WHEN 'N' THEN 'Note ajoutée' WHEN 'R' THEN 'Demande rejetée'
    WHEN 'S' THEN 'Demande recherchée' END,
  STAT_FUNCTION_DESC_GER = CASE STAT_FUNCTION WHEN 'A' THEN 'Bestellung angenommen' WHEN 'D' THEN 'Dokument geliefert'
    WHEN 'F' THEN 'An nächsten Lieferanten' WHEN 'N' THEN 'Notiz hinzugefügt' WHEN 'R' THEN 'Bestellung abgelehnt'
    WHEN 'S' THEN 'Bestellung recherchiert' END;

UPDATE ID_REQUEST_TYPE SET
  REQUEST_TYPE_DESC_FRE = CASE REQUEST_TYPE WHEN 'ILL' THEN 'Demandes de bibliothèques'
    WHEN 'PAT' THEN 'Demandes de lecteurs' WHEN 'REG' THEN 'Demandes normales' WHEN 'RUS' THEN 'Demandes urgentes' END,
  REQUEST_TYPE_DESC_GER = CASE REQUEST_TYPE WHEN 'ILL' THEN 'Bestellungen anderer Bibliotheken'
    WHEN 'PAT' THEN 'Bestellungen von Benutzern' WHEN 'REG' THEN 'Normale Bestellungen'
    WHEN 'RUS' THEN 'Eilige Bestellungen' END;

UPDATE ID_CUSTOMER_ID SET
  CUSTOMER_ID_DESC_FRE = CASE CUSTOMER_ID WHEN 'EXTERNAL' THEN 'Bibliothèques externes'
    WHEN 'INTERNAL' THEN 'Établissement' WHEN 'PARTNER' THEN 'Bibliothèques partenaires' END,
  CUSTOMER_ID_DESC_GER = CASE CUSTOMER_ID WHEN 'EXTERNAL' THEN 'Fremde Bibliotheken'
    WHEN 'INTERNAL' THEN 'Eigene Einrichtung' WHEN 'PARTNER' THEN 'Partnerbibliotheken' END;

UPDATE ID_ISO_UNFILLED SET
  ISO_UNFILLED_DESC_FRE = CASE ISO_UNFILLED WHEN 1 THEN 'En prêt' WHEN 2 THEN 'En traitement' WHEN 3 THEN 'Perdu'
    WHEN 4 THEN 'Exclu du prêt' WHEN 5 THEN 'Non possédé' WHEN 6 THEN 'En commande'
    WHEN 7 THEN 'Volume non encore paru' WHEN 8 THEN 'À la reliure' WHEN 9 THEN 'Manquant'
    WHEN 10 THEN 'Absent des rayons' WHEN 13 THEN 'Coût au-dessus de la limite' WHEN 16 THEN 'Droit d''auteur'
    WHEN 17 THEN 'Référence introuvable' WHEN 27 THEN 'Autre' END,
  ISO_UNFILLED_DESC_GER = CASE ISO_UNFILLED WHEN 1 THEN 'In Benutzung, verliehen' WHEN 2 THEN 'In Bearbeitung'
    WHEN 3 THEN 'Verloren' WHEN 4 THEN 'Nicht ausleihbar' WHEN 5 THEN 'Nicht vorhanden' WHEN 6 THEN 'Bestellt'
    WHEN 7 THEN 'Band oder Heft noch nicht verfügbar' WHEN 8 THEN 'Beim Buchbinder' WHEN 9 THEN 'Lücke im Bestand'
    WHEN 10 THEN 'Nicht am Standort' WHEN 13 THEN 'Kosten über der Grenze' WHEN 16 THEN 'Urheberrecht nicht geklärt'
    WHEN 17 THEN 'Angaben nicht ermittelbar' WHEN 27 THEN 'Sonstiges' END;

UPDATE ID_EVENT SET
  EVENT_DESC_FRE = CASE EVENT_ID WHEN 1010 THEN 'Nouvelles demandes à vérifier'
    WHEN 1020 THEN 'Demandes incomplètes' WHEN 1030 THEN 'Demandes en attente d''accord'
    WHEN 2010 THEN 'Recherche au catalogue' WHEN 2020 THEN 'Recherche en rayon' WHEN 2030 THEN 'Introuvable en rayon'
    WHEN 3010 THEN 'À copier' WHEN 3020 THEN 'À expédier' WHEN 3030 THEN 'En attente de paiement'
    WHEN 4010 THEN 'Envoyé à un fournisseur' WHEN 4020 THEN 'Réponse conditionnelle'
    WHEN 4030 THEN 'Plus de fournisseur' WHEN 5010 THEN 'Reçu en prêt' WHEN 5020 THEN 'Prêt à retirer'
    WHEN 5030 THEN 'Prêt en retard' WHEN 6010 THEN 'En attente du lecteur' WHEN 6020 THEN 'En attente de signature'
    WHEN 9010 THEN 'Livré' WHEN 9020 THEN 'Rejeté' WHEN 9030 THEN 'Annulé' END,
  EVENT_DESC_GER = CASE EVENT_ID WHEN 1010 THEN 'Neue Bestellungen, zu prüfen'
    WHEN 1020 THEN 'Unvollständige Bestellungen' WHEN 1030 THEN 'Bestellungen vor der Freigabe'
    WHEN 2010 THEN 'Katalogrecherche' WHEN 2020 THEN 'Suche am Standort' WHEN 2030 THEN 'Nicht am Standort gefunden'
    WHEN 3010 THEN 'Zu kopieren' WHEN 3020 THEN 'Zu versenden' WHEN 3030 THEN 'Zahlung steht aus'
    WHEN 4010 THEN 'An Lieferanten gesandt' WHEN 4020 THEN 'Bedingte Antwort' WHEN 4030 THEN 'Kein Lieferant mehr'
    WHEN 5010 THEN 'Leihe eingetroffen' WHEN 5020 THEN 'Abholbereit' WHEN 5030 THEN 'Überfällige Leihe'
    WHEN 6010 THEN 'Antwort des Benutzers steht aus' WHEN 6020 THEN 'Unterschrift steht aus'
    WHEN 9010 THEN 'Geliefert' WHEN 9020 THEN 'Abgelehnt' WHEN 9030 THEN 'Storniert' END;

UPDATE ID_ITEM_TYPE SET
  ITEM_TYPE_DESC_FRE = CASE ITEM_TYPE WHEN 'ART' THEN 'Article' WHEN 'BOK' THEN 'Livre' WHEN 'CHP' THEN 'Chapitre'
    WHEN 'MIC' THEN 'Microforme' WHEN 'THS' THEN 'Thèse' END,
  ITEM_TYPE_DESC_GER = CASE ITEM_TYPE WHEN 'ART' THEN 'Aufsatz' WHEN 'BOK' THEN 'Buch' WHEN 'CHP' THEN 'Buchkapitel'
    WHEN 'MIC' THEN 'Mikroform' WHEN 'THS' THEN 'Hochschulschrift' END;
