# The words of the configuration's template: vigrel_word(mark, then one word for each of vigrel_languages). Category names
# are the usual ones of each country, so that a station knows what its senders are likely to send.
set(vigrel_languages 044 045 046 047 049 358)

vigrel_word(Fire            "Fire" "Brand" "Brand" "Brann" "Brand" "Palo")
vigrel_word(Gas             "Gas" "Gas" "Gas" "Gass" "Gas" "Kaasu")
vigrel_word(Intrusion       "Intrusion" "Indbrud" "Inbrott" "Innbrudd" "Einbruch" "Murto")
vigrel_word(Water           "Water leak" "Vandlækage" "Vattenläcka" "Vannlekkasje" "Wasserleck" "Vesivuoto")
vigrel_word(Cooling         "Cooling" "Køl/frys" "Kyla/frys" "Kjøl/frys" "Kälte" "Kylmälaite")
vigrel_word(Power           "Power" "El" "El" "Strøm" "Strom" "Sähkö")
vigrel_word(Ventilation     "HVAC" "Ventilation" "Ventilation" "Ventilasjon" "HLK" "LVI")
vigrel_word(EmergencyCall   "Emergency call" "Nødkald" "Nödsamtal" "Nødanrop" "Notruf" "Hätäkutsu")
vigrel_word(Lift            "Lift" "Elevator" "Hiss" "Heis" "Aufzug" "Hissi")
vigrel_word(Door            "Door" "Dør" "Dörr" "Dør" "Tür" "Ovi")
vigrel_word(Technical       "Technical" "Teknik" "Teknik" "Teknisk" "Technik" "Tekninen")
vigrel_word(Communication
  "Communication fault"
  "Kommunikationsfejl"
  "Kommunikationsfel"
  "Kommunikasjonsfeil"
  "Verbindungsstörung"
  "Yhteysvika")
vigrel_word(FireInstruction
  "Leave the building. Call the fire brigade."
  "Forlad bygningen. Ring til brandvæsenet."
  "Lämna byggnaden. Ring räddningstjänsten."
  "Forlat bygningen. Ring brannvesenet."
  "Gebäude verlassen. Feuerwehr rufen."
  "Poistu rakennuksesta. Soita hätäkeskukseen.")
vigrel_word(Received        "Received" "Modtaget" "Mottaget" "Mottatt" "Empfangen" "Saapunut")
vigrel_word(State           "State" "Status" "Status" "Status" "Zustand" "Tila")
vigrel_word(Category        "Category" "Kategori" "Kategori" "Kategori" "Kategorie" "Ryhmä")
vigrel_word(Alarm           "Alarm" "Alarm" "Larm" "Alarm" "Alarm" "Hälytys")
vigrel_word(Place           "Place" "Sted" "Plats" "Sted" "Ort" "Paikka")
vigrel_word(Details         "Details" "Detaljer" "Detaljer" "Detaljer" "Details" "Lisätieto")
vigrel_word(Text3           "Text 3" "Tekst 3" "Text 3" "Tekst 3" "Text 3" "Teksti 3")
vigrel_word(Text5           "Text 5" "Tekst 5" "Text 5" "Tekst 5" "Text 5" "Teksti 5")
vigrel_word(Instruction     "Instruction" "Instruks" "Åtgärd" "Instruks" "Anweisung" "Ohje")
vigrel_word(Ack             "Ack" "Kvit." "Kvitt." "Kvitt." "Quitt." "Kuit.")
vigrel_word(EventDate
  "Date of event"
  "Dato for hændelse"
  "Händelsedatum"
  "Hendelsesdato"
  "Ereignisdatum"
  "Tapahtumapäivä")
vigrel_word(EventTime
  "Time of event"
  "Tid for hændelse"
  "Händelsetid"
  "Hendelsestid"
  "Ereigniszeit"
  "Tapahtuma-aika")
vigrel_word(Event           "Event" "Hændelse" "Händelse" "Hendelse" "Ereignis" "Tapahtuma")
vigrel_word(Date            "Date" "Dato" "Datum" "Dato" "Datum" "Päivä")
vigrel_word(Time            "Time" "Tid" "Tid" "Tid" "Uhrzeit" "Aika")
